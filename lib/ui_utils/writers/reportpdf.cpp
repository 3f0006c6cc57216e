#include "writers/reportpdf.h"

#include "core/paths.h"
#include "core/temporarysibling_p.h"
#include "writers/pagecanvas_p.h"
#include "writers/pageflow_p.h"
#include "writers/pageframe_p.h"
#include "writers/pagestyle_p.h"
#include "writers/statusicons_p.h"
#include "writers/titleblock_p.h"

#include <QFileInfo>
#include <QPainter>
#include <QPointer>
#include <QPrinter>

#include <memory>
#include <optional>

/// One print(): what the renderer was set to, and the pages made of it.
///
/// A slot that hears of the progress may delete the renderer, which then counts as cancelled.
class ReportPDF::Job
{
public:
    Job(ReportPDF& owner, const QString& target);
    ~Job();

    /// The file is whole and on the disk.
    bool run();
    QString error() const { return m_error; }

private:
    bool fail(const QString& error);
    bool isStopped() const { return !m_owner || m_owner->m_isCancelled; }
    bool tellProgress(int page);

    void setUpPrinter();
    bool layOut();
    bool printPages();
    void drawPage(uiutils::PageCanvas& canvas, int page, int& next);
    bool finish();

    QPointer<ReportPDF> m_owner;
    QString m_target;
    uiutils::TemporarySibling m_file;
    QString m_error;
    QPrinter m_printer;
    std::optional<uiutils::PageStyle> m_style;
    std::optional<uiutils::PageFrame> m_frame;
    uiutils::TitleBlock m_titleBlock;
    QList<ReportItem*> m_items;
    QVector<uiutils::PlacedPortion> m_placed;
    int m_pageCount = 0;
};

ReportPDF::Job::Job(ReportPDF& owner, const QString& target)
    : m_owner(&owner)
    , m_target(target)
    , m_file(target)
    , m_printer(QPrinter::ScreenResolution)
    , m_titleBlock({QImage::fromData(uiutils::readIcon(owner.m_logo)), owner.m_documentTitle, owner.m_title,
              owner.m_fields})
    , m_items(owner.m_items)
{
    m_items.prepend(&m_titleBlock);
}

ReportPDF::Job::~Job()
{
    for (ReportItem* item : qAsConst(m_items))
        item->release();
}

bool ReportPDF::Job::fail(const QString& error)
{
    m_error = error;
    return false;
}

bool ReportPDF::Job::tellProgress(int page)
{
    if (!isStopped())
        Q_EMIT m_owner->progressChanged(page, m_pageCount);
    return !isStopped();
}

bool ReportPDF::Job::run()
{
    if (!m_file.isOpen())
        return fail(tr("Cannot create a file in the folder of %1: %2").arg(m_target, qt_error_string(errno)));
    setUpPrinter();
    return layOut() && printPages() && finish();
}

void ReportPDF::Job::setUpPrinter()
{
    m_printer.setOutputFormat(QPrinter::PdfFormat);
    m_printer.setOutputFileName(m_file.path());
    m_printer.setPageSize(QPageSize(QPageSize::Letter));
    m_printer.setPageOrientation(
            m_owner->m_orientation == Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    m_printer.setFullPage(true);
    m_printer.setDocName(m_owner->m_title.isEmpty() ? m_owner->m_documentTitle : m_owner->m_title);
    m_printer.setCreator(QStringLiteral("uiutils"));
    m_style.emplace(&m_printer);
    m_frame.emplace(*m_style, m_printer.paperRect(QPrinter::DevicePixel).size(),
            uiutils::PageFrame::Texts {
                    m_owner->m_documentTitle, m_owner->m_title, m_owner->m_unitId, m_owner->m_timestamp});
}

bool ReportPDF::Job::layOut()
{
    const QSizeF body = m_frame->body().size();
    for (ReportItem* item : qAsConst(m_items)) {
        item->measure(*m_style, body);
        if (!tellProgress(0))
            return false;
    }
    m_placed = uiutils::flowOntoPages(m_items, body.height(), &m_pageCount);
    return tellProgress(0);
}

bool ReportPDF::Job::printPages()
{
    QPainter painter;
    if (!painter.begin(&m_printer))
        return fail(tr("Cannot print to %1.").arg(m_target));
    uiutils::PageCanvas canvas(painter, *m_style);
    int next = 0;
    for (int page = 0; page < m_pageCount; ++page) {
        if (page > 0 && !m_printer.newPage())
            return fail(tr("Cannot write page %1 of %2.").arg(page).arg(m_target));
        drawPage(canvas, page, next);
        if (!tellProgress(page + 1))
            return false;
    }
    return painter.end() || fail(tr("Cannot write %1.").arg(m_target));
}

void ReportPDF::Job::drawPage(uiutils::PageCanvas& canvas, int page, int& next)
{
    const QPointF origin = m_frame->body().topLeft();
    m_frame->draw(canvas, page + 1, m_pageCount);
    for (; next < m_placed.size() && m_placed.at(next).page == page; ++next) {
        const uiutils::PlacedPortion& placed = m_placed.at(next);
        m_items.at(placed.item)->draw(canvas, placed.portion, origin + QPointF(0, placed.top));
    }
    canvas.flush();
}

bool ReportPDF::Job::finish()
{
    return m_file.sync() && m_file.close() && m_file.renameTo(m_target);
}

ReportPDF::ReportPDF(QObject* parent)
    : QObject(parent)
    , m_documentTitle(tr("Solvant Report"))
    , m_logo(uiutils::paths::logo)
{
}

ReportPDF::~ReportPDF() = default;

bool ReportPDF::print(const QString& path, QString* error)
{
    if (m_isPrinting) {
        if (error)
            *error = tr("Cannot print %1 while another file is being printed.").arg(path);
        return false;
    }
    const QPointer<ReportPDF> self(this);
    m_isPrinting = true;
    m_isCancelled = false;
    Job job(*this, uiutils::onDisk(path));
    const bool isPrinted = job.run();
    if (error)
        *error = job.error();
    if (self)
        m_isPrinting = false;
    return isPrinted;
}

void ReportPDF::cancel()
{
    m_isCancelled = true;
}
