#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

namespace uiutils::demo {

/// What can happen to an instrument and is hard to bring about on a desktop: a disk that is full, a service that
/// answers slowly or not at all. Everything ends with the object.
///
/// The services are those of the current embedded back end; those of other processes stay as they are.
class Desk : public QObject
{
    Q_OBJECT
    /// The services that can be disturbed, in ascending order; none where they live in other processes.
    Q_PROPERTY(QStringList services READ services CONSTANT)
    /// Whether every write to a file of this process fails, as on a full disk.
    Q_PROPERTY(bool diskFull READ isDiskFull WRITE setDiskFull NOTIFY diskFullChanged)
    /// The services that cannot be reached.
    Q_PROPERTY(QStringList away READ away NOTIFY servicesChanged)
    /// The services that take `slowness` milliseconds for each answer.
    Q_PROPERTY(QStringList slow READ slow NOTIFY servicesChanged)

public:
    /// Below the time that pages wait for an answer.
    static constexpr int slowness = 400;

    explicit Desk(QObject* parent = nullptr);
    ~Desk() override;

    QStringList services() const;
    bool isDiskFull() const { return m_isDiskFull; }
    void setDiskFull(bool isFull);
    QStringList away() const { return m_away.values(); }
    QStringList slow() const { return m_slow.values(); }

    /// Takes a service away, or brings it back with everything that it reported meanwhile.
    Q_INVOKABLE void setAway(const QString& service, bool isAway);
    Q_INVOKABLE void setSlow(const QString& service, bool isSlow);

Q_SIGNALS:
    void diskFullChanged();
    void servicesChanged();

private:
    bool m_isDiskFull = false;
    QSet<QString> m_away;
    QSet<QString> m_slow;
};

} // namespace uiutils::demo
