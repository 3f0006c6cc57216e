#pragma once

#include "service/pendingchanges.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <functional>

class KivData;
class Manifest;

namespace kiv::embedded {
class EmbeddedService;
}

namespace uiutils::inspector {

/// A service with what can be seen of it and, where it lives in this process, with what can be done to it. What was
/// done to the service itself (slow, refusing, away) ends with the object; what was done to an item stays.
class InspectedService : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY changed)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY changed)
    /// Whether the service lives in this process, so that everything below works.
    Q_PROPERTY(bool isOwn READ isOwn NOTIFY changed)
    Q_PROPERTY(bool isSlow READ isSlow WRITE setSlow NOTIFY changed)
    Q_PROPERTY(bool isRefusing READ isRefusing WRITE setRefusing NOTIFY changed)
    Q_PROPERTY(bool isAway READ isAway WRITE setAway NOTIFY changed)
    /// The settings whose values have not been sent, were rejected or were overtaken.
    Q_PROPERTY(uiutils::PendingChanges* pending READ pending CONSTANT)

public:
    /// Below the time that pages wait for an answer.
    static constexpr int slowness = 400;

    /// The own side of the service at present, or null.
    using OwnSide = std::function<kiv::embedded::EmbeddedService*()>;

    InspectedService(Manifest* manifest, const OwnSide& ownSide, QObject* parent = nullptr);
    ~InspectedService() override;

    QString name() const { return m_name; }
    bool isAvailable() const;
    int itemCount() const;
    bool isOwn() const { return own() != nullptr; }
    bool isSlow() const;
    void setSlow(bool isSlow);
    bool isRefusing() const;
    /// Rejects every write to a setting, or allows what was allowed before.
    void setRefusing(bool isRefusing);
    bool isAway() const;
    void setAway(bool isAway);
    PendingChanges* pending() { return &m_pending; }

    /// The name under which pages know an item; empty for null and while the item is away.
    Q_INVOKABLE QString nameOf(KivData* item) const;

    /// These return false, and change nothing, when the service does not live here or has no such item.
    Q_INVOKABLE bool setQuality(const QString& id, int quality);
    Q_INVOKABLE bool setReady(const QString& id, bool isReady);
    /// False also for an item whose service decides by an expression.
    Q_INVOKABLE bool setApplicable(const QString& id, bool isApplicable);
    /// Reports a value as the service itself. Returns why that was not possible, or an empty text.
    Q_INVOKABLE QString setValue(const QString& id, const QVariant& value);
    /// Empty texts for no limit. Returns why that was not possible, or an empty text.
    Q_INVOKABLE QString setLimits(const QString& id, const QString& minimum, const QString& maximum);

Q_SIGNALS:
    void changed();

private:
    kiv::embedded::EmbeddedService* own() const { return m_ownSide(); }

    const QPointer<Manifest> m_manifest;
    const QString m_name;
    const OwnSide m_ownSide;
    /// The services to which it was done: a service that was published again knows nothing of it.
    QPointer<kiv::embedded::EmbeddedService> m_slowed;
    QPointer<kiv::embedded::EmbeddedService> m_refusing;
    QPointer<kiv::embedded::EmbeddedService> m_takenAway;
    int m_delayBefore = 0;
    QHash<QString, QString> m_refusalsBefore;
    PendingChanges m_pending;
};

} // namespace uiutils::inspector
