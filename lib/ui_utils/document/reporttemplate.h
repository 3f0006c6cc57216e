#pragma once

#include "core/uiutils_export.h"

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

namespace uiutils {
class ReportTemplatePrivate;
class TableRows;
} // namespace uiutils

/// The report document: one JSON object that all report writers read. It is built by a fixed sequence of calls or read
/// from a file.
///
/// A test application calls beginReport(), any number of setKey() and addAttribute(), blocks of beginSection() ...
/// endSection(), which nest, and of beginTable(), addRow() ..., endTable(), and finally endReport(). Values are stored
/// as text. Children are stored under numbered keys; a child's number is the count of its parent's keys that contain
/// "section_", "table_" or "row_", so that rows, beside the key "use_row_labels", number from 1. Rows that addRows()
/// adds are numbered as it says.
///
/// No operation reports an error: a call that makes no sense in the current state does nothing.
class UIUTILS_EXPORT ReportTemplate : public QObject
{
    Q_OBJECT

public:
    explicit ReportTemplate(QObject* parent = nullptr);
    ~ReportTemplate() override;

    /// Replaces the document by that of a JSON file, and takes the tag and the path from it. If the file cannot be
    /// read, the document and the tag are empty and hasError() is true. Open nodes stay open. `file` is an instrument
    /// path ("/cust/...").
    Q_INVOKABLE void readFile(const QString& file);
    /// The same for a path on the disk, which is used as it is.
    void readDiskFile(const QString& file);
    /// Replaces the document, the tag, the path and the errors of readFile() by those of `other`. Open nodes stay open.
    void adopt(const ReportTemplate& other);
    /// Replaces the document alone. Open nodes stay open.
    void setObject(const QJsonObject& root);
    /// Whether the last readFile() failed.
    Q_INVOKABLE bool hasError() const;
    /// The document as indented JSON text; empty for an empty document.
    Q_INVOKABLE QString toJson() const;

    /// Opens a report node.
    Q_INVOKABLE void beginReport(const QString& tag);
    /// Stores the text of `val` under `key` in the current node.
    Q_INVOKABLE void setKey(const QString& key, const QVariant& val);
    /// Stores the text of `val` as the attribute `key` of the current node: under "attr_" and the key.
    Q_INVOKABLE void addAttribute(const QString& key, const QVariant& val);
    /// Opens a section in the current node. At most 1,000 sections can be nested: a deeper one is filled and closed
    /// like any other, but is left out with everything in it, and the log has one warning per report.
    Q_INVOKABLE void beginSection(const QString& tag, const QString& title);
    /// Opens a table of one value column in the current node.
    Q_INVOKABLE void beginTable(const QString& tag, const QString& title);
    /// Adds a row to the current table: its label and one cell with the text of `val`, the tag and the attributes. Does
    /// nothing if the current node is not a table.
    Q_INVOKABLE void addRow(
            const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs);
    /// Closes the current table into its section or report; does nothing if the current node is not a table.
    Q_INVOKABLE void endTable();
    /// Closes the current section into its section or report; does nothing if the current node is not a section.
    Q_INVOKABLE void endSection();
    /// Makes the current node, whatever its type, the document.
    Q_INVOKABLE void endReport();

    /// Moves the rows of `rows` to the end of the current table. `rows` remains the caller's and is empty then, and
    /// emits its countChanged(). Does nothing, and leaves `rows` as it is, if that is null or empty or if the current
    /// node is not a table.
    ///
    /// Such a table keeps the order in which its rows were added, those that addRow() adds before and after included:
    /// when it is closed, they are numbered from 1 if there are at most 9, from 10 if there are at most 90, from 100 if
    /// there are at most 900 and so on, so that the order of the numbers is that of the keys.
    Q_INVOKABLE void addRows(uiutils::TableRows* rows);

    /// The document's root.
    QJsonObject object() const;
    /// The tag of the file that was read last; empty if there was none.
    QString getTag() const;
    /// The file that was last given to readFile().
    QString getPath() const;
    /// The root's value under the full key `name`; invalid if there is none.
    QVariant getAttr(const QString& name) const;
    /// What went wrong in the last readFile(), with file, line and column; empty if nothing did.
    QString errorString() const;

private:
    const std::unique_ptr<uiutils::ReportTemplatePrivate> d;
};
