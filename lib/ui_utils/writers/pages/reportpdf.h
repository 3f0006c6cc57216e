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
}

/// Prints report items as a PDF file: Letter pages with a title block on the first, a header line on the others and a
/// footer on all of them, an outline of headings and tables, and title, author, subject and producer.
///
/// Set what the pages are to show, then call toPdf() or print(). They need a QGuiApplication.
class UIUTILS_EXPORT ReportPDF : public QObject
{
    Q_OBJECT

public:
    enum Orientation { Portrait, Landscape };

    using Field = ReportField;

    explicit ReportPDF(QObject* parent = nullptr);
    ~ReportPDF() override;

    /// What the pages show, in that order. The items stay the caller's and must not go while print() runs.
    void setItems(const QList<ReportItem*>& items);

    void setOrientation(Orientation orientation);
    /// What kind of document this is, beside the logo and in the header; "Solvant Report" by default.
    void setDocumentTitle(const QString& title);
    /// The report's own title, in the title block, the header and the file's information; where it is empty, the file
    /// is titled as the document.
    void setTitle(const QString& title);
    void setAuthor(const QString& author);
    void setSubject(const QString& subject);
    void setProducer(const QString& producer);
    /// An instrument path; empty for none. The default is the instrument's logo.
    void setLogo(const QString& path);
    /// Stands in the footer; empty leaves it out.
    void setUnitId(const QString& id);
    /// Stands in the middle of the footer.
    void setTimestamp(const QString& text);
    void setFields(const QVector<Field>& fields);

    /// Prints into memory and returns the whole file. Nothing when it was cancelled, and then `error` is empty, or when
    /// a step failed, which `error` names. It does not return to the event loop. While it runs, no other of the program
    /// prints: items have one layout at a time.
    QByteArray toPdf(QString* error = nullptr);

    /// Prints to `path`, an instrument path in a folder that exists; the file takes its place when it is whole and on
    /// the disk. Returns false, with `path` untouched and nothing left beside it, when toPdf() returns nothing and when
    /// it cannot be written.
    bool print(const QString& path, QString* error = nullptr);

    /// Whether any of the program is printing, and calls what is connected to progressChanged().
    static bool isPrinting();

public Q_SLOTS:
    /// Ends what is being printed, before its next page. To be called by what is connected to progressChanged().
    void cancel();

Q_SIGNALS:
    /// So many of the pages are printed. While the items are measured, the count is 0, which means not known yet.
    void progressChanged(int page, int pageCount);

private:
    class Job;

    const std::unique_ptr<uiutils::ReportPDFPrivate> d;
};
