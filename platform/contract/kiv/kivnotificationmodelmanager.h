#pragma once

#include <kiv/kiv_export.h>
#include <kiv/kivnotification.h>

#include <QAbstractListModel>
#include <QVector>

/// What the user is told and asked now: the tray as a list model, newest entry first, and one dialog at a time.
///
/// **Tray**: entries are copies of the texts as they were when KIVNotification::notifyTray() was called, and stay until
/// the user removes them. Beyond `maximumTrayEntries` the oldest go. Roles: `kind` (a KIVNotification::Kind),
/// `longLabel`, `msg` (texts) and `time` (a QDateTime).
///
/// **Dialogs** open in the order in which KIVNotification::notifyDialog() was called; the others wait. They are no
/// copies: a notification that is destroyed leaves the queue, whether its dialog is open or waits, and the next one
/// opens. Nothing is ever dropped from the queue. A view makes itself known by following `currentDialog`, a binding or
/// a connection: a request that comes when nobody does waits all the same, and the log says that it is shown nowhere.
///
/// **Answers**: the view calls accept() or reject() for the open dialog. The notification has left the queue and
/// currentDialogChanged() has been emitted when notificationAccepted() or notificationRejected() is, exactly once, and
/// for requests alone: whoever closes the message of an error has neither accepted nor rejected anything. Everybody
/// hears all answers and looks for its own by the notification's value "uid". A slot may raise other notifications; the
/// one that was answered it lets go by deleteLater(), since others may still have to hear of it.
///
/// **Thread**: that of the screens. No call blocks, and none fails.
class KIV_EXPORT KIVNotificationModelManager : public QAbstractListModel
{
    Q_OBJECT
    /// Entries in the tray.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// The notification whose dialog is open, or null.
    Q_PROPERTY(KIVNotification* currentDialog READ currentDialog NOTIFY currentDialogChanged)
    /// How many dialogs wait behind the open one.
    Q_PROPERTY(int waitingDialogs READ waitingDialogs NOTIFY waitingDialogsChanged)

public:
    enum Role {
        KindRole = Qt::UserRole,
        LongLabelRole,
        MsgRole,
        TimeRole,
    };

    static constexpr int maximumTrayEntries = 100;

    /// The one manager of the process, made by the first call; never null. It belongs to nobody and outlives every
    /// screen, so that none takes the tray along; `parent` is for platforms whose manager needs an owner.
    static KIVNotificationModelManager* instance(QObject* parent = nullptr);

    int count() const { return m_tray.size(); }
    KIVNotification* currentDialog() const { return m_dialogs.value(0); }
    int waitingDialogs() const { return qMax(0, m_dialogs.size() - 1); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The user's answer to the open dialog; the one answer of a dialog that is no request is either. Nothing happens
    /// without an open dialog.
    Q_INVOKABLE void accept();
    Q_INVOKABLE void reject();

    /// Takes the entry out of the tray that is in row `row`, counted from 0; nothing happens outside the tray.
    Q_INVOKABLE void remove(int row);
    /// Empties the tray.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void countChanged();
    void currentDialogChanged();
    void waitingDialogsChanged();

    void notificationAccepted(KIVNotification* notification);
    void notificationRejected(KIVNotification* notification);

private:
    friend class KIVNotification;

    struct Entry
    {
        KIVNotification::Kind kind;
        QString longLabel;
        QString msg;
        QDateTime time;
    };

    KIVNotificationModelManager() = default;
    ~KIVNotificationModelManager() override = default;

    void addToTray(const KIVNotification& notification);
    void dropRows(int first, int last);
    void addDialog(KIVNotification* notification);
    void warnOfNoView(const KIVNotification& notification) const;
    void takeDialog(int position);
    void forget(QObject* notification);
    void answer(void (KIVNotificationModelManager::*answered)(KIVNotification*));

    QVector<Entry> m_tray;
    QVector<KIVNotification*> m_dialogs;
};
