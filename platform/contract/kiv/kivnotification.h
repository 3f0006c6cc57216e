#pragma once

#include <kiv/kiv_export.h>

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

/// A notice or a question for the user: a title, a text, and values for the receiver of the answer.
///
/// Fill it first, then raise it in the tray, in a dialog, or in both. KIVNotificationModelManager shows it and reports
/// the answer to a request.
///
/// **Ownership**: whoever creates a notification owns it, before and after the answer. Deleting it withdraws it: its
/// dialog closes, or never opens, and no answer is reported. Its tray entries stay.
///
/// **Thread**: the GUI thread. No call blocks, and none fails.
class KIV_EXPORT KIVNotification : public QObject
{
    Q_OBJECT
    /// What the notification is; a notice at first.
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    /// The title, in the user's language.
    Q_PROPERTY(QString longLabel READ longLabel NOTIFY changed)
    /// The text, in the user's language: plain text, in which line feeds count.
    Q_PROPERTY(QString msg READ msg NOTIFY changed)
    /// When it was last raised; invalid before that.
    Q_PROPERTY(QDateTime time READ time NOTIFY changed)

public:
    /// What a notification is.
    enum Kind {
        /// Information. Its dialog has one answer, which is not reported.
        Notice,
        /// Something went wrong. Its dialog has one answer, which is not reported.
        Error,
        /// A question, which the user accepts or rejects.
        Request,
    };
    Q_ENUM(Kind)

    /// A notice without texts. Its value "uid" is a text that no other notification has.
    explicit KIVNotification(QObject* parent = nullptr);
    ~KIVNotification() override;

    /// Makes the notification an error.
    void setError() { setKind(Error); }
    /// Makes the notification a question.
    void setRequest() { setKind(Request); }
    Kind kind() const { return m_kind; }

    /// The title, in the user's language.
    void setLongLabel(const QString& longLabel);
    QString longLabel() const { return m_longLabel; }

    /// The text, in the user's language: plain text, in which line feeds count.
    void setMsg(const QString& msg);
    QString msg() const { return m_msg; }

    /// Stores `value` under `key` for the receiver of the answer. The user sees those that a view shows: "acceptText"
    /// and "rejectText", the words of the answers, and "details", more text.
    void setValue(const QString& key, const QVariant& value);
    /// The value last stored under `key`; invalid without one.
    Q_INVOKABLE QVariant value(const QString& key) const { return m_values.value(key); }

    QDateTime time() const { return m_time; }

    /// Adds an entry with the present texts at the top of the tray; each call adds another.
    void notifyTray();

    /// Opens a dialog with the texts, or queues it until the earlier ones are answered. An open dialog follows changes
    /// of the texts. Does nothing while the notification is open or queued.
    void notifyDialog();

Q_SIGNALS:
    /// A property has changed.
    void changed();

private:
    void setKind(Kind kind);
    void stamp();

    Kind m_kind = Notice;
    QString m_longLabel;
    QString m_msg;
    QDateTime m_time;
    QVariantMap m_values;
};
