#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QRemoteObjectDynamicReplica;
class QRemoteObjectHost;
class QRemoteObjectNode;

namespace bench {

/// An item as Qt Remote Objects carries it: an object with a property.
class ReplicatedItem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

public:
    double value() const { return m_value; }
    void setValue(double value);

Q_SIGNALS:
    void valueChanged(double value);

private:
    double m_value = 0;
};

/// A process that offers items to others.
class ReplicaHost
{
public:
    ReplicaHost();
    ~ReplicaHost();

    /// `meeting` is a number that both processes know.
    void offer(int items, int meeting);
    void change(int items);

private:
    std::unique_ptr<QRemoteObjectHost> m_host;
    std::vector<std::unique_ptr<ReplicatedItem>> m_items;
    int m_changes = 0;
};

/// A process that has replicas of them.
class ReplicaWatcher : public QObject
{
    Q_OBJECT

public:
    ReplicaWatcher();
    ~ReplicaWatcher() override;

    /// Answers when all replicas are there.
    void replicate(int items, int meeting);
    /// Answers from now on whenever the item changes.
    void watch(int item);

private Q_SLOTS:
    void onChanged(double sent) const;

private:
    std::unique_ptr<QRemoteObjectNode> m_node;
    std::vector<std::unique_ptr<QRemoteObjectDynamicReplica>> m_replicas;
    QMetaObject::Connection m_watched;
};

} // namespace bench
