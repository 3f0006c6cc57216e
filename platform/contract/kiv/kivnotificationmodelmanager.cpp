#include <kiv/kivnotificationmodelmanager.h>

#include <QMetaMethod>
#include <QPointer>
#include <QtDebug>

#include <algorithm>

KIVNotificationModelManager* KIVNotificationModelManager::instance(QObject*)
{
    static auto* const manager = new KIVNotificationModelManager;
    return manager;
}

int KIVNotificationModelManager::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant KIVNotificationModelManager::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Entry& entry = m_tray.at(index.row());
    switch (role) {
    case KindRole:
        return int(entry.kind);
    case LongLabelRole:
    case Qt::DisplayRole:
        return entry.longLabel;
    case MsgRole:
        return entry.msg;
    case TimeRole:
        return entry.time;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> KIVNotificationModelManager::roleNames() const
{
    return {{KindRole, "kind"}, {LongLabelRole, "longLabel"}, {MsgRole, "msg"}, {TimeRole, "time"}};
}

void KIVNotificationModelManager::accept()
{
    answer(&KIVNotificationModelManager::notificationAccepted);
}

void KIVNotificationModelManager::reject()
{
    answer(&KIVNotificationModelManager::notificationRejected);
}

void KIVNotificationModelManager::remove(int row)
{
    if (row >= 0 && row < count())
        discardRows(row, row);
}

void KIVNotificationModelManager::clear()
{
    if (count() > 0)
        discardRows(0, count() - 1);
}

void KIVNotificationModelManager::addToTray(const KIVNotification& notification)
{
    if (count() == maximumTrayEntries)
        discardRows(maximumTrayEntries - 1, maximumTrayEntries - 1);
    beginInsertRows(QModelIndex(), 0, 0);
    m_tray.prepend({notification.kind(), notification.longLabel(), notification.msg(), notification.time()});
    endInsertRows();
    Q_EMIT countChanged();
}

void KIVNotificationModelManager::discardRows(int first, int last)
{
    beginRemoveRows(QModelIndex(), first, last);
    m_tray.remove(first, last - first + 1);
    endRemoveRows();
    Q_EMIT countChanged();
}

void KIVNotificationModelManager::addDialog(KIVNotification* notification)
{
    if (m_dialogs.contains(notification))
        return;
    warnOfNoView(*notification);
    connect(notification, &QObject::destroyed, this, &KIVNotificationModelManager::forget);
    m_dialogs.append(notification);
    if (m_dialogs.size() == 1)
        Q_EMIT currentDialogChanged();
    else
        Q_EMIT waitingDialogsChanged();
}

/// The question would wait forever, and the user could not know why nothing happens.
void KIVNotificationModelManager::warnOfNoView(const KIVNotification& notification) const
{
    static const QMetaMethod changed = QMetaMethod::fromSignal(&KIVNotificationModelManager::currentDialogChanged);
    if (notification.kind() == KIVNotification::Request && !isSignalConnected(changed))
        qWarning("The question \"%s\" is shown nowhere: put a NotificationDialog on a page of the window.",
                qUtf8Printable(notification.longLabel()));
}

void KIVNotificationModelManager::takeDialog(int position)
{
    const bool othersWait = m_dialogs.size() > 1;
    m_dialogs.remove(position);
    if (position == 0)
        Q_EMIT currentDialogChanged();
    if (othersWait)
        Q_EMIT waitingDialogsChanged();
}

void KIVNotificationModelManager::forget(QObject* notification)
{
    const auto found = std::find_if(m_dialogs.cbegin(), m_dialogs.cend(),
            [=](const KIVNotification* dialog) { return static_cast<const QObject*>(dialog) == notification; });
    if (found != m_dialogs.cend())
        takeDialog(int(found - m_dialogs.cbegin()));
}

void KIVNotificationModelManager::answer(void (KIVNotificationModelManager::*answered)(KIVNotification*))
{
    const QPointer<KIVNotification> notification = currentDialog();
    if (!notification)
        return;
    disconnect(notification, &QObject::destroyed, this, &KIVNotificationModelManager::forget);
    takeDialog(0);
    if (notification && notification->kind() == KIVNotification::Request)
        Q_EMIT(this->*answered)(notification);
}
