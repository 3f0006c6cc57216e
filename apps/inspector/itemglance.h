#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class KivData;

namespace uiutils::inspector {

/// An item as a row shows it, live. A row that is in sight has one; what changes more often than people can read is
/// shown ten times in a second.
class ItemGlance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* item READ item WRITE setItem NOTIFY itemChanged)
    /// The label; the name where the service gives none. Kept while the service is away.
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// What pages call the item, and the name of its type; kept while the service is away.
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString type READ type NOTIFY changed)
    /// Whether the value is a number that has a history.
    Q_PROPERTY(bool isNumber READ isNumber NOTIFY changed)
    /// A code of Status.
    Q_PROPERTY(int quality READ quality NOTIFY changed)
    /// Why the value is not to be trusted or not to be shown, in a few words; empty for an item that is as it should
    /// be.
    Q_PROPERTY(QString trouble READ trouble NOTIFY changed)

public:
    explicit ItemGlance(QObject* parent = nullptr);

    QObject* item() const;
    void setItem(QObject* item);
    QString title() const { return m_title; }
    QString text() const { return m_text; }
    QString name() const { return m_name; }
    QString type() const { return m_type; }
    bool isNumber() const;
    int quality() const { return m_quality; }
    QString trouble() const { return m_trouble; }

Q_SIGNALS:
    void itemChanged();
    void changed();

private:
    void note();
    void describe();
    void look();

    QPointer<KivData> m_item;
    QMetaObject::Connection m_table;
    QTimer m_pause;
    bool m_isStale = false;
    QString m_title;
    QString m_name;
    QString m_type;
    QString m_text;
    QString m_trouble;
    int m_quality = 0;
};

} // namespace uiutils::inspector
