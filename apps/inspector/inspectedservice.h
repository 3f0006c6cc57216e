#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVariantList>

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
    /// Whether a transaction runs, and the settings whose values have not been sent or were rejected: objects with
    /// `name`, `from` and `to`. Nobody announces a transaction, so both are as they were at the last lookForChanges().
    Q_PROPERTY(bool isChanging READ isChanging NOTIFY pendingChanged)
    Q_PROPERTY(QVariantList pending READ pending NOTIFY pendingChanged)

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
    bool isChanging() const { return m_isChanging; }
    QVariantList pending() const { return m_pending; }

    Q_INVOKABLE void lookForChanges();

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
    void pendingChanged();

private:
    kiv::embedded::EmbeddedService* own() const { return m_ownSide(); }
    QVariantList findPending() const;

    const QPointer<Manifest> m_manifest;
    const QString m_name;
    const OwnSide m_ownSide;
    /// The services to which it was done: a service that was published again knows nothing of it.
    QPointer<kiv::embedded::EmbeddedService> m_slowed;
    QPointer<kiv::embedded::EmbeddedService> m_refusing;
    QPointer<kiv::embedded::EmbeddedService> m_takenAway;
    int m_delayBefore = 0;
    QHash<QString, QString> m_refusalsBefore;
    bool m_isChanging = false;
    QVariantList m_pending;
};

} // namespace uiutils::inspector
