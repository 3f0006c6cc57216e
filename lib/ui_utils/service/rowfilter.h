#pragma once

#include "core/uiutils_export.h"

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QVariantList>

#include <memory>

namespace uiutils {

class RowFilterPrivate;

/// The rows of a list model that a user looks for, in the order that a page wants: a table of a service
/// (`jobs_res_jobs.value`), saved reports, or any other model with named roles. In QML: RowFilter.
///
/// Rows follow the model. A role that the model lacks counts as empty. When the language of the application changes,
/// texts are sorted anew. A deleted model leaves no rows. Setters emit their notifier when the value changes.
class UIUTILS_EXPORT RowFilter : public QSortFilterProxyModel
{
    Q_OBJECT
    /// What the user looks for. Every word must be found in one of the `textRoles` of a row, wherever it is, and whatever
    /// its capitals and accents: "muller" finds "Müller". "" finds all rows.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// The names of the roles in which words are looked for. Empty, the default: in all roles.
    Q_PROPERTY(QStringList textRoles READ textRoles WRITE setTextRoles NOTIFY textRolesChanged)
    /// The name of the role whose value decides whether a row is kept; see `values`. "", the default: none does.
    Q_PROPERTY(QString role READ role WRITE setRole NOTIFY roleChanged)
    /// The values of `role` that are kept, compared as texts. Empty, the default: all rows are kept.
    Q_PROPERTY(QVariantList values READ values WRITE setValues NOTIFY valuesChanged)
    /// The name of the role by which rows are sorted: numbers by size, then times, then texts as the user's locale
    /// sorts them, whatever their capitals. Rows that are equal keep the order of the model, and those without a value
    /// come last, also if `descending`. "", the default: in the order of the model.
    Q_PROPERTY(QString sortBy READ sortBy WRITE setSortBy NOTIFY sortByChanged)
    /// Whether the largest, newest or last comes first; false by default.
    Q_PROPERTY(bool descending READ isDescending WRITE setDescending NOTIFY descendingChanged)
    /// The number of rows that are kept.
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit RowFilter(QObject* parent = nullptr);
    ~RowFilter() override;

    QString text() const;
    void setText(const QString& text);
    QStringList textRoles() const;
    void setTextRoles(const QStringList& names);
    QString role() const;
    void setRole(const QString& name);
    QVariantList values() const;
    void setValues(const QVariantList& values);
    QString sortBy() const;
    void setSortBy(const QString& name);
    bool isDescending() const;
    void setDescending(bool isDescending);
    int count() const { return rowCount(); }

    /// The model whose rows are searched and sorted; it stays the caller's.
    void setSourceModel(QAbstractItemModel* model) override;
    /// Those of the model: a list of QML has them with its first row, a table of a service with its first value.
    QHash<int, QByteArray> roleNames() const override;

    /// The values of a row by the names of their roles; empty outside the rows.
    Q_INVOKABLE QVariantMap get(int row) const;

Q_SIGNALS:
    void textChanged();
    void textRolesChanged();
    void roleChanged();
    void valuesChanged();
    void sortByChanged();
    void descendingChanged();
    void countChanged();

protected:
    /// Whether the row has the searched text and the wanted value.
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    /// The order of the role `sortBy`.
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    const std::unique_ptr<RowFilterPrivate> d;
};

} // namespace uiutils
