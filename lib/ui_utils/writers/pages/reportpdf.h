#pragma once

#include "core/uiutils_export.h"
#include "writers/pages/reportfield.h"
#include "writers/pages/reportitem.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

namespace uiutils {
class ReportPDFPrivate;
class ReportPainter;
} // namespace uiutils

/// Prints report items as a PDF file: Letter pages with a title block on the first, a header line on the others and a
/// footer on all of them, an outline of headings and tables, and title, author, subject and producer.
///
/// Set what the pages are to show, then call toPdf() or print(), which need a QGuiApplication.
class UIUTILS_EXPORT ReportPDF : public QObject
{
    Q_OBJECT

public:
    /// How the pages lie.
    enum Orientation { Portrait, Landscape };

    /// A line of the title block.
    using Field = ReportField;

    explicit ReportPDF(QObject* parent = nullptr);
    ~ReportPDF() override;

    /// What the pages show, in that order. The items remain the caller's and must not be deleted during toPdf() or
    /// print().
    void setItems(const QList<ReportItem*>& items);

    /// Portrait by default.
    void setOrientation(Orientation orientation);
    /// How the pages of a wide table lie.
    enum TableOrientation {
        /// As the others.
        SameOrientation,
        /// In landscape, if the table is too wide for portrait pages.
        AutomaticOrientation,
    };
    /// SameOrientation by default. Headings above such a table are on its pages.
    void setTableOrientation(TableOrientation orientation);
    /// The kind of document, shown beside the logo and in the header; "Solvant Report" by default.
    void setDocumentTitle(const QString& title);
    /// The report's own title, shown in the title block and the header, and the title of the file; if it is empty, the
    /// file has the document's title.
    void setTitle(const QString& title);
    /// The author among the entries of the file.
    void setAuthor(const QString& author);
    /// The subject among the entries of the file.
    void setSubject(const QString& subject);
    /// The producer among the entries of the file.
    void setProducer(const QString& producer);
    /// An instrument path; empty for none. The default is the instrument's logo.
    void setLogo(const QString& path);
    /// Shown in the footer; left out if empty.
    void setUnitId(const QString& id);
    /// Shown in the middle of the footer.
    void setTimestamp(const QString& text);
    /// The lines of the title block.
    void setFields(const QVector<Field>& fields);

    /// Whether files say what is a heading, a table or a cell, for programs that read them aloud or take them apart.
    enum Structure {
        /// In files of up to 20,000 rows of tables, and in the archive form.
        AutomaticStructure,
        WithStructure,
        WithoutStructure,
    };
    /// AutomaticStructure by default. Structure makes large files about four times as large.
    void setStructure(Structure structure);
    /// Whether files have the form for archives, PDF/A-2u: whatever is needed to show and read them is inside, and they
    /// say so. False by default.
    void setArchive(bool isArchive);

    /// Prints into memory and returns the complete file. Returns nothing if it was cancelled, with `error` empty, or if
    /// a step failed, which `error` names. Does not return to the event loop. While it runs, no other object of the
    /// program can print, because items have one layout at a time.
    QByteArray toPdf(QString* error = nullptr);

    /// Prints to `path`, an instrument path in a folder that exists; the file is replaced only when the new one is
    /// completely on the disk. Returns false, leaves `path` untouched and no temporary file, if toPdf() returns nothing
    /// or the file cannot be written.
    [[nodiscard]] bool print(const QString& path, QString* error = nullptr);

    /// Whether any object of the program is printing; slots of progressChanged() are called then.
    static bool isPrinting();

public Q_SLOTS:
    /// Stops printing before the next page. To be called by a slot of progressChanged().
    void cancel();

Q_SIGNALS:
    /// `page` pages of `pageCount` are printed. While the items are measured, both the pages and their number are not
    /// known: `pageCount` is 0.
    void progressChanged(int page, int pageCount);

private:
    friend class uiutils::ReportPainter;
    class Job;

    const std::unique_ptr<uiutils::ReportPDFPrivate> d;
};
