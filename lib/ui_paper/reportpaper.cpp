#include "ui_paper/reportpaper.h"

#include "writers/pages/reportpainter.h"
#include "writers/pages/reportpdf.h"

#include <QPainter>
#include <QPointer>
#include <QPrinter>
#include <QVector>

#include <algorithm>

namespace uiutils {

class ReportPaperPrivate
{
public:
    bool isPrinting = false;
    bool isCancelled = false;
};

namespace {

constexpr qreal pointsOfAnInch = 72;

/// The page's corner is that of the paper, wherever the printer begins.
void setUnits(QPainter& painter, const QPrinter& printer)
{
    painter.resetTransform();
    painter.translate(-printer.pageLayout().paintRectPixels(printer.resolution()).topLeft());
    painter.scale(printer.resolution() / pointsOfAnInch, printer.resolution() / pointsOfAnInch);
}

/// The pages in the order of printing, counted from 0. Empty if the printer's range has none.
QVector<int> sheetsFor(const QPrinter& printer, int pageCount)
{
    // Printers count from 1, and 0 stands for all.
    const int first = qMax(printer.fromPage(), 1);
    const int last = printer.toPage() > 0 ? qMin(printer.toPage(), pageCount) : pageCount;
    QVector<int> pages;
    for (int page = first; page <= last; ++page)
        pages += page - 1;
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QVector<int> sheets;
    for (int i = 0; i < pages.size() * copies; ++i)
        sheets += pages.at(printer.collateCopies() ? i % pages.size() : i / copies);
    return sheets;
}

/// One job. A slot of progressChanged() may delete the object; the job then counts as cancelled.
class Job
{
public:
    Job(ReportPaper& owner, const bool& isCancelled, ReportPainter& pages, QPrinter& printer)
        : m_owner(&owner)
        , m_isCancelled(isCancelled)
        , m_pages(pages)
        , m_printer(printer)
    {
    }

    bool run(QString* error)
    {
        const bool isDone = layOut() && print(error) && goesOn(m_sheets.size());
        if (!isDone && m_painter.isActive())
            m_printer.abort();
        return m_painter.isActive() && m_painter.end() && isDone;
    }

private:
    bool goesOn(int sheet)
    {
        if (m_owner && !m_isCancelled)
            Q_EMIT m_owner->progressChanged(sheet, m_sheets.size());
        return m_owner && !m_isCancelled;
    }

    bool layOut()
    {
        while (m_pages.layOutMore()) {
            if (!goesOn(0))
                return false;
        }
        return true;
    }

    bool print(QString* error)
    {
        *error = begin();
        for (int i = 0; error->isEmpty() && i < m_sheets.size(); ++i) {
            if (i > 0 && !goesOn(i))
                return false;
            *error = i > 0 && !m_printer.newPage() ? ReportPaper::tr("the printer takes no further page") : QString();
            setUnits(m_painter, m_printer);
            m_pages.paint(m_painter, m_sheets.at(i));
        }
        return error->isEmpty();
    }

    /// What is wrong, or nothing.
    QString begin()
    {
        m_sheets = sheetsFor(m_printer, m_pages.pageCount());
        if (m_pages.pageCount() == 0)
            return ReportPaper::tr("the program has no fonts, because it is not a QGuiApplication");
        if (m_sheets.isEmpty())
            return ReportPaper::tr("the report has no page %1, only %2")
                    .arg(m_printer.fromPage())
                    .arg(m_pages.pageCount());
        return m_painter.begin(&m_printer) ? QString() : ReportPaper::tr("the printer cannot be used");
    }

    QPointer<ReportPaper> m_owner;
    const bool& m_isCancelled;
    ReportPainter& m_pages;
    QPrinter& m_printer;
    QVector<int> m_sheets;
    QPainter m_painter;
};

} // namespace

ReportPaper::ReportPaper(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ReportPaperPrivate>())
{
}

ReportPaper::~ReportPaper() = default;

bool ReportPaper::print(const ReportPDF& pages, QPrinter& printer, QString* error)
{
    QString ignored;
    QString& message = error ? *error : ignored;
    message.clear();
    if (d->isPrinting) {
        message = tr("another report is being printed");
        return false;
    }
    d->isPrinting = true;
    d->isCancelled = false;
    ReportPainter painter(pages, printer.pageLayout().fullRect(QPageLayout::Point).size());
    const QPointer<ReportPaper> guard(this);
    const bool isPrinted = Job(*this, d->isCancelled, painter, printer).run(&message);
    if (guard)
        d->isPrinting = false;
    return isPrinted;
}

void ReportPaper::cancel()
{
    d->isCancelled = true;
}

} // namespace uiutils
