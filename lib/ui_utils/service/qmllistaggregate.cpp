#include "service/qmllistaggregate.h"

#include <QPointer>

QMLListAggregate::QMLListAggregate(const KivListAggregate& list, QObject* parent)
    : QAbstractListModel(parent)
    , m_list(list)
{
    readRoles();
}

void QMLListAggregate::readRoles()
{
    m_roles.clear();
    int role = Qt::UserRole;
    const QList<QByteArray> names = m_list.getPropertyNames();
    for (const QByteArray& name : names)
        m_roles.insert(++role, name);
}

QMLListAggregate::~QMLListAggregate() = default;

int QMLListAggregate::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_list.getSize();
}

QVariant QMLListAggregate::data(const QModelIndex& index, int role) const
{
    const auto name = m_roles.constFind(role);
    if (name == m_roles.cend() || index.row() >= m_list.getSize())
        return QVariant();
    return m_list.getPropertyVariant(*name, index.row());
}

void QMLListAggregate::reset(const std::function<void()>& change)
{
    const QPointer<QMLListAggregate> self(this);
    beginResetModel();
    if (!self)
        return;
    change();
    readRoles();
    endResetModel();
}
