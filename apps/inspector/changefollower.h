#pragma once

#include "changelog.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QTimer>

class KIVClientInterface;
class KIVClientItem;

namespace uiutils::inspector {

/// Enters into a log what a service reports: every change of its items, and that items come and go. It begins to
/// listen a few items at a time, so that nobody waits for a service with many.
class ChangeFollower : public QObject
{
    Q_OBJECT

public:
    /// `log` must outlive the object.
    ChangeFollower(KIVClientInterface* client, ChangeLog* log, QObject* parent = nullptr);

    /// Whether every item is listened to.
    bool isComplete() const { return m_waiting.isEmpty(); }

private:
    void noteItems();
    void listenToSome();
    void listenTo(KIVClientItem* item);
    void noteValue();
    void noteUnit();
    void noteReadiness();
    void noteQuality();
    void noteApplicability();
    const KIVClientItem* reporter() const;
    void note(ChangeLog::Kind kind, const KIVClientItem& item, const QString& text);
    void noteService(const QString& id, const QString& text);

    struct Heard
    {
        QPointer<KIVClientItem> item;
        /// Nobody knows it while the service is away.
        QString name;
    };

    const QPointer<KIVClientInterface> m_client;
    ChangeLog* const m_log;
    QTimer m_timer;
    QStringList m_waiting;
    QSet<QString> m_ids;
    QHash<QString, Heard> m_heard;
    bool m_wasValid = false;
};

} // namespace uiutils::inspector
