#pragma once

#include <kiv/kiv_export.h>
#include <kiv/kivnotification.h>

#include <QAbstractListModel>
#include <QVector>

/// The user's notifications and questions: the tray as a list model, newest entry first, and one dialog at a time.
///
/// **Tray**: entries are copies of the texts at the time of the call to KIVNotification::notifyTray(), and stay until
/// the user removes them. Beyond `maximumTrayEntries` the oldest are removed. Roles: `kind` (a KIVNotification::Kind),
/// `longLabel`, `msg` (texts) and `time` (a QDateTime).
///
/// **Dialogs** open in the order of the calls to KIVNotification::notifyDialog(); the others wait. They are not copies:
/// a notification that is destroyed leaves the queue, whether its dialog is open or waits, and the next one opens.
/// Nothing else removes one from the queue unanswered. A view makes itself known by following `currentDialog` with a
/// binding or a connection: without a view a request is queued all the same, and the log has a line that says so.
///
/// **Answers**: the view calls accept() or reject() for the open dialog. The notification leaves the queue,
/// currentDialogChanged() is emitted, and then notificationAccepted() or notificationRejected(), exactly once and only
/// for requests: closing an error message neither accepts nor rejects anything. Every listener receives all answers and
/// finds its own by the notification's value "uid". A slot may raise other notifications. It deletes the answered one
/// with deleteLater(), because other slots may still have to receive it.
///
/// **Thread**: the GUI thread. No call blocks, and none fails.
class KIV_EXPORT KIVNotificationModelManager : public QAbstractListModel
{
    Q_OBJECT
    /// The number of entries in the tray.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// The notification whose dialog is open, or null.
    Q_PROPERTY(KIVNotification* currentDialog READ currentDialog NOTIFY currentDialogChanged)
    /// The number of dialogs that wait after the open one.
    Q_PROPERTY(int waitingDialogs READ waitingDialogs NOTIFY waitingDialogsChanged)

public:
    /// The roles of the model; pages know them as `kind`, `longLabel`, `msg` and `time`.
    enum Role {
        KindRole = Qt::UserRole,
        LongLabelRole,
        MsgRole,
        TimeRole,
    };

    /// Maximum number of entries in the tray.
    static constexpr int maximumTrayEntries = 100;

    /// The one manager of the process, created by the first call; never null. It has no owner and outlives every
    /// screen, so that the tray survives them; `parent` is for platforms whose manager needs an owner.
    static KIVNotificationModelManager* instance(QObject* parent = nullptr);

    int count() const { return m_tray.size(); }
    KIVNotification* currentDialog() const { return m_dialogs.value(0); }
    int waitingDialogs() const { return qMax(0, m_dialogs.size() - 1); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The user's answer to the open dialog. The only answer of a dialog that is not a request may be given by either.
    /// Without an open dialog nothing happens.
    Q_INVOKABLE void accept();
    /// The user's other answer to the open dialog; see accept().
    Q_INVOKABLE void reject();

    /// Removes the entry in row `row` (counted from 0) from the tray; does nothing outside the tray.
    Q_INVOKABLE void remove(int row);
    /// Empties the tray.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void countChanged();
    void currentDialogChanged();
    void waitingDialogsChanged();

    /// The user has answered this request with yes.
    void notificationAccepted(KIVNotification* notification);
    /// The user has answered this request with no.
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
    void discardRows(int first, int last);
    void addDialog(KIVNotification* notification);
    void warnOfNoView(const KIVNotification& notification) const;
    void takeDialog(int position);
    void forget(QObject* notification);
    void answer(void (KIVNotificationModelManager::*answered)(KIVNotification*));

    QVector<Entry> m_tray;
    QVector<KIVNotification*> m_dialogs;
};
