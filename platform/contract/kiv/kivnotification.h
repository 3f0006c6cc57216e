#pragma once

#include <kiv/kiv_export.h>

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

/// One thing that the user is told or asked: a title, a text, and values for whoever hears the answer.
///
/// It is filled first and raised then, in the tray, in a dialog, or in both. KIVNotificationModelManager shows it and
/// reports the answer to a request.
///
/// **Ownership**: whoever makes a notification owns it, before and after the answer. Deleting it takes it back: its
/// dialog closes, or never comes up, and nobody hears an answer. What it has put into the tray stays there.
///
/// **Thread**: that of the screens. No call blocks, and none fails.
class KIV_EXPORT KIVNotification : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    Q_PROPERTY(QString longLabel READ longLabel NOTIFY changed)
    Q_PROPERTY(QString msg READ msg NOTIFY changed)
    /// When it was raised last; invalid before.
    Q_PROPERTY(QDateTime time READ time NOTIFY changed)

public:
    enum Kind {
        /// For information. A dialog of it has one answer, which nobody is told.
        Notice,
        /// Something went wrong. A dialog of it has one answer, which nobody is told.
        Error,
        /// A question that is accepted or rejected.
        Request,
    };
    Q_ENUM(Kind)

    /// A notice without texts. Its value "uid" is a text that no other notification has.
    explicit KIVNotification(QObject* parent = nullptr);
    ~KIVNotification() override;

    void setError() { setKind(Error); }
    void setRequest() { setKind(Request); }
    Kind kind() const { return m_kind; }

    /// The title, in the user's language.
    void setLongLabel(const QString& longLabel);
    QString longLabel() const { return m_longLabel; }

    /// What it is about, in the user's language: plain text, in which line feeds count.
    void setMsg(const QString& msg);
    QString msg() const { return m_msg; }

    /// Keeps `value` under `key` for whoever hears the answer; the user does not see it.
    void setValue(const QString& key, const QVariant& value);
    /// The value last kept under `key`; invalid without one.
    Q_INVOKABLE QVariant value(const QString& key) const { return m_values.value(key); }

    QDateTime time() const { return m_time; }

    /// Puts an entry with the present texts on top of the tray, another one with each call.
    void notifyTray();

    /// Opens a dialog with the texts, or lets it wait until those before it are answered. An open dialog follows when
    /// the texts change. Nothing happens while the notification is open or waits already.
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
