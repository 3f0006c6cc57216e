#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <limits>
#include <vector>

namespace uiutils::inspector {

/// What happened to items and services, the newest first, with the time of each. It holds the last `capacity` changes
/// and counts those that fell out. Changes are shown ten times in a second, however many there are.
class ChangeLog : public QAbstractListModel
{
    Q_OBJECT
    /// A log that is paused stays as it is; what happens meanwhile is counted as missed.
    Q_PROPERTY(bool paused READ isPaused WRITE setPaused NOTIFY pausedChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int capacity READ capacity CONSTANT)
    /// How many changes fell out at the end, and how many came while the log was paused.
    Q_PROPERTY(double fallen READ fallen NOTIFY countChanged)
    Q_PROPERTY(double missed READ missed NOTIFY countChanged)

public:
    enum Kind { Value, Unit, Readiness, Quality, Applicability, Error, Service };
    Q_ENUM(Kind)

    struct Change
    {
        Kind kind = Value;
        /// Of the item; of a service its name.
        QString id;
        /// What pages call the item.
        QString name;
        QString text;
        /// The value where it is a number; otherwise not a number.
        double number = std::numeric_limits<double>::quiet_NaN();
        /// Milliseconds since 1970.
        qint64 time = 0;
    };

    enum Role {
        TimeRole = Qt::UserRole,
        IdRole,
        NameRole,
        KindRole,
        TextRole,
    };

    static constexpr int usualCapacity = 10000;
    using Clock = std::function<qint64()>;

    /// `clock` gives the time of changes, in milliseconds since 1970.
    explicit ChangeLog(int capacity = usualCapacity, const Clock& clock = {}, QObject* parent = nullptr);

    /// Enters a change. Its time is now.
    void add(Change change);

    bool isPaused() const { return m_isPaused; }
    void setPaused(bool isPaused);
    int count() const { return int(m_changes.size()); }
    int capacity() const { return m_capacity; }
    double fallen() const { return double(m_fallen); }
    double missed() const { return double(m_missed); }

    /// Forgets everything, the counts included.
    Q_INVOKABLE void clear();
    /// The numbers that the log has of an item, the oldest first: a list of seconds since 1970, and one of values.
    Q_INVOKABLE QVariantList history(const QString& id);
    /// Shows at once what came last.
    void flush();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void pausedChanged();
    void countChanged();

private:
    void discardOldest(int count);

    const int m_capacity;
    const Clock m_clock;
    QTimer m_timer;
    bool m_isPaused = false;
    qint64 m_fallen = 0;
    qint64 m_missed = 0;
    std::deque<Change> m_changes;
    /// What is not shown yet, the oldest first.
    std::vector<Change> m_fresh;
};

} // namespace uiutils::inspector
