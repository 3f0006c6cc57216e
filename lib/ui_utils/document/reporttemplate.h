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
}

/// The report document, built by a fixed sequence of calls or read from a file; one JSON object that every report
/// writer reads.
///
/// A test application calls beginReport(), any number of setKey() and addAttribute(), blocks of beginSection() ...
/// endSection(), which nest, and of beginTable(), addRow() ..., endTable(), and last endReport(). Values are stored
/// as text. Children stand under numbered keys; a child's number is the count of its parent's keys that contain
/// "section_", "table_" or "row_", so that rows, beside the key "use_row_labels", number from 1.
///
/// No operation reports an error: what makes no sense where it is called does nothing.
class UIUTILS_EXPORT ReportTemplate : public QObject
{
    Q_OBJECT

public:
    explicit ReportTemplate(QObject* parent = nullptr);
    ~ReportTemplate() override;

    /// Replaces the document by that of a JSON file and takes the tag and the path from it. When the file cannot be
    /// read, the document and the tag are empty and hasError() is true. Nodes begun and not ended stay open. An
    /// instrument path ("/cust/...").
    Q_INVOKABLE void readFile(const QString& file);
    /// The same for a path of the disk, which is taken as it is.
    void readDiskFile(const QString& file);
    /// Replaces the document, the tag, the path and what readFile() said by those of `other`. Nodes begun and not ended
    /// stay open.
    void adopt(const ReportTemplate& other);
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
    /// Opens a section in the current node. A report holds 1,000 nested sections: one that is nested deeper is filled
    /// and closed as any other, but left out with all that it holds, and a warning is logged once for each report.
    Q_INVOKABLE void beginSection(const QString& tag, const QString& title);
    /// Opens a table of one value column in the current node.
    Q_INVOKABLE void beginTable(const QString& tag, const QString& title);
    /// Adds a row to the current table: its label and one cell with the text of `val`, the tag and the attributes.
    /// Does nothing when the current node is no table.
    Q_INVOKABLE void addRow(
            const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs);
    /// Closes the current table into its section or report; does nothing when the current node is no table.
    Q_INVOKABLE void endTable();
    /// Closes the current section into its section or report; does nothing when the current node is no section.
    Q_INVOKABLE void endSection();
    /// Makes the current node, whatever it is, the document.
    Q_INVOKABLE void endReport();

    /// The document's root.
    QJsonObject object() const;
    /// The tag of the last file read; empty when none was.
    QString getTag() const;
    /// The file that was last given to readFile().
    QString getPath() const;
    /// The root's value under the full key `name`; invalid when absent.
    QVariant getAttr(const QString& name) const;
    /// What went wrong in the last readFile(), with file, line and column; empty when nothing did.
    QString errorString() const;

private:
    const std::unique_ptr<uiutils::ReportTemplatePrivate> d;
};
