#pragma once

#include "service/kivdata.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

namespace uiutils::demo {

/// A setting that the user changes while a transaction holds the change back.
///
/// The item itself shows only the held value; this object also knows the service's, and so whether there is anything to
/// apply. Entering the service's value again withdraws the change.
class PendingItem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KivData* item READ item WRITE setItem NOTIFY itemChanged)
    /// The service's value; the last one while the service is away.
    Q_PROPERTY(QVariant served READ served NOTIFY servedChanged)
    /// Whether the item's value waits to be applied.
    Q_PROPERTY(bool pending READ isPending NOTIFY pendingChanged)
    /// Why the service rejected the entry, in its words; empty when something else is entered or the entry is settled.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    using QObject::QObject;

    KivData* item() const { return m_item; }
    QVariant served() const { return m_served; }
    bool isPending() const { return m_isPending; }
    QString refusal() const { return m_refusal; }

    void setItem(KivData* item);

    /// Sets the item's value.
    Q_INVOKABLE void enter(const QVariant& value);

Q_SIGNALS:
    void itemChanged();
    void servedChanged();
    void pendingChanged();
    void refusalChanged();
    /// The item is about to be set: the moment to begin a transaction.
    void edited();
    /// The service rejected the entry, for the reason in `words`; emitted for every attempt.
    void refused(const QString& words);
    /// The item's value was changed by something other than this entry.
    void reported();

private:
    void hear();
    void compare();
    void setRefusal(const QString& words);

    QPointer<KivData> m_item;
    QVariant m_served;
    QString m_refusal;
    bool m_isPending = false;
    bool m_isEntering = false;
};

} // namespace uiutils::demo
