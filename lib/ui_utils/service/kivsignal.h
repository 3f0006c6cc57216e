#pragma once

#include "core/uiutils_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class KIVSignalPrivate;
}

/// Relays to QML the errors that a service reports of its own accord.
class UIUTILS_EXPORT KIVSignal : public QObject
{
    Q_OBJECT
    /// The name of the service to listen to. Writing disconnects the one before and connects to this one if available;
    /// serviceChanged() is not emitted.
    Q_PROPERTY(QString service READ getService WRITE setService NOTIFY serviceChanged)

public:
    explicit KIVSignal(QObject* parent = nullptr);
    ~KIVSignal() override;

    QString getService() const;
    void setService(const QString& service);

Q_SIGNALS:
    void serviceChanged();
    /// The service reported an error, in words for the user.
    void signalKIVError(QString error);

public Q_SLOTS:
    /// Emits signalKIVError().
    void slotError(QString error);

private:
    const std::unique_ptr<uiutils::KIVSignalPrivate> d;
};
