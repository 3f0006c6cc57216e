#include "service/qmllistaggregate.h"

#include <QPointer>

class uiutils::QMLListAggregatePrivate
{
public:
    explicit QMLListAggregatePrivate(const KivListAggregate& table)
        : list(table)
    {
        readRoles();
    }

    void readRoles();

    const KivListAggregate& list;
    QHash<int, QByteArray> roles;
};

void uiutils::QMLListAggregatePrivate::readRoles()
{
    roles.clear();
    int role = Qt::UserRole;
    const QList<QByteArray> names = list.getPropertyNames();
    for (const QByteArray& name : names)
        roles.insert(++role, name);
}

QMLListAggregate::QMLListAggregate(const KivListAggregate& list, QObject* parent)
    : QAbstractListModel(parent)
    , d(std::make_unique<uiutils::QMLListAggregatePrivate>(list))
{
}

QMLListAggregate::~QMLListAggregate() = default;

int QMLListAggregate::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->list.getSize();
}

QHash<int, QByteArray> QMLListAggregate::roleNames() const
{
    return d->roles;
}

QVariant QMLListAggregate::data(const QModelIndex& index, int role) const
{
    const auto name = d->roles.constFind(role);
    if (name == d->roles.cend() || index.row() >= d->list.getSize())
        return QVariant();
    return d->list.getPropertyVariant(*name, index.row());
}

void QMLListAggregate::reset(const std::function<void()>& change)
{
    const QPointer<QMLListAggregate> self(this);
    beginResetModel();
    if (!self)
        return;
    change();
    d->readRoles();
    endResetModel();
}
