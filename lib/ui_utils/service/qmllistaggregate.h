#pragma once

#include "core/uiutils_export.h"

#include <kiv/kivaggregate.h>

#include <QAbstractListModel>
#include <QHash>

#include <functional>
#include <memory>

namespace uiutils {
class QMLListAggregatePrivate;
}

/// The rows of a table as a list model, with one role for each member, named as the member.
class UIUTILS_EXPORT QMLListAggregate : public QAbstractListModel
{
    Q_OBJECT

public:
    /// `list` is not owned. Its owner changes it in reset() only and keeps it longer than the model.
    explicit QMLListAggregate(const KivListAggregate& list, QObject* parent = nullptr);
    ~QMLListAggregate() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Numbered from Qt::UserRole + 1 in the order of the members.
    QHash<int, QByteArray> roleNames() const override;

    /// Runs `change`, which replaces the list, as a reset of the model.
    void reset(const std::function<void()>& change);

private:
    const std::unique_ptr<uiutils::QMLListAggregatePrivate> d;
};
