#include "writers/pages/pageprinter_p.h"

#include "writers/pages/filecanvas_p.h"

namespace uiutils {

namespace {

void warnOfMissing(const QString& characters)
{
    if (!characters.isEmpty())
        qWarning("No installed font has these characters of a report, which are printed as empty frames: %s",
                qUtf8Printable(characters));
}

/// One line for all of them: where one is missing, mostly all are.
void warnOfUnreadableIcons(const QStringList& files)
{
    if (!files.isEmpty())
        qWarning("Built-in status icons are printed in place of files that are missing or are not images of at most "
                 "1 MiB: %s",
                qUtf8Printable(files.join(QStringLiteral(", "))));
}

} // namespace

PagePrinter::PagePrinter(const PageSettings& settings, const QList<ReportItem*>& items, const Progress& progress)
    : m_layout(settings.surroundings, items, letterPaper(settings.orientation))
    , m_document(settings.document)
    , m_progress(progress)
{
}

PagePrinter::~PagePrinter() = default;

PagePrinter::Outcome PagePrinter::print(QIODevice* device, QString* error)
{
    Outcome outcome = Stopped;
    if (layOut()) {
        m_document.unitsOfAPoint = m_layout.style().points(1);
        pdf::DocumentWriter writer(device, m_document);
        outcome = printPages(writer, error);
    }
    warnOfUnreadableIcons(m_layout.style().unreadableIcons());
    return outcome;
}

bool PagePrinter::layOut()
{
    while (m_layout.advance()) {
        if (!m_progress(0, 0))
            return false;
    }
    return m_progress(0, m_layout.pageCount());
}

PagePrinter::Outcome PagePrinter::printPages(pdf::DocumentWriter& writer, QString* error)
{
    FileCanvas canvas(writer, m_layout.style());
    for (int page = 0; page < m_layout.pageCount() && !writer.hasFailed(); ++page) {
        writer.beginPage(m_layout.pageSize(page));
        m_layout.draw(canvas, page);
        writer.endPage();
        if (!m_progress(page + 1, m_layout.pageCount()))
            return Stopped;
    }
    warnOfMissing(canvas.missing());
    return writer.finish(m_layout.outline(), error) ? Printed : Failed;
}

} // namespace uiutils
