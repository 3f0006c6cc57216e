#pragma once

#include "core/uiutils_export.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

class QJsonObject;
class ReportTemplate;

namespace uiutils {

class TableRowsPrivate;

/// Collects the rows of a table until ReportTemplate::addRows() takes them all at once. Every report then shows them in
/// the order in which they were collected, however many there are.
class UIUTILS_EXPORT TableRows : public QObject
{
    Q_OBJECT
    /// The number of rows that wait to be taken.
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit TableRows(QObject* parent = nullptr);
    ~TableRows() override;

    int count() const;

    /// Collects a row: its label and one cell with the text of `val`, the tag and the attributes, as
    /// ReportTemplate::addRow() does. Emits countChanged().
    Q_INVOKABLE void addRow(
            const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs);
    /// Discards all rows. Emits countChanged() if there were any.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void countChanged();

private:
    friend class ::ReportTemplate;

    /// Gives all rows away without a signal.
    QVector<QJsonObject> take();

    const std::unique_ptr<TableRowsPrivate> d;
};

} // namespace uiutils
