#include "viewerdocument.h"

#include "documentbytes.h"
#include "pdfpages.h"

#include <QMetaObject>

#include <algorithm>
#include <exception>

namespace uiutils::viewer {

/// The result of reading a file.
struct ViewerDocument::Opened
{
    Problem problem = Problem::None;
    QVector<QSizeF> sizes;
    bool isRepaired = false;
};

namespace {

std::unique_ptr<PdfPages> pagesOf(const QString& path, Problem* problem)
{
    // A file that needs more memory than there is ends here, with an exception.
    try {
        const QByteArray bytes = readDocument(path, problem);
        return *problem == Problem::None ? PdfPages::open(bytes, problem) : nullptr;
    } catch (const std::exception&) {
        *problem = Problem::Damaged;
        return nullptr;
    }
}

QImage drawn(const PdfPages& pages, int page, QSize pixels, const std::function<bool()>& isUnwanted)
{
    try {
        return pages.render(page, pixels, isUnwanted);
    } catch (const std::exception&) {
        return QImage();
    }
}

} // namespace

ViewerDocument::ViewerDocument(QObject* parent)
    : QObject(parent)
    , m_pages(std::make_shared<std::unique_ptr<PdfPages>>())
{
    m_worker.moveToThread(&m_thread);
    m_thread.start();
}

ViewerDocument::~ViewerDocument()
{
    stop(-1);
}

bool ViewerDocument::stop(int patienceMs)
{
    m_everything->isUnwanted = true;
    m_thread.quit();
    return m_thread.wait(patienceMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(patienceMs));
}

void ViewerDocument::inThread(const std::function<void()>& work)
{
    QMetaObject::invokeMethod(&m_worker, work, Qt::QueuedConnection);
}

void ViewerDocument::open(const QString& path)
{
    m_path = path;
    inThread([this, path, pages = m_pages] {
        Opened opened;
        *pages = pagesOf(path, &opened.problem);
        if (*pages) {
            opened.sizes = (*pages)->sizes();
            opened.isRepaired = (*pages)->isRepaired();
        }
        // The thread ends before this object is deleted.
        QMetaObject::invokeMethod(
                this, [this, opened] { take(opened); }, Qt::QueuedConnection);
    });
}

void ViewerDocument::take(const Opened& opened)
{
    m_problem = opened.problem;
    m_sizes = opened.sizes;
    m_isRepaired = opened.isRepaired;
    for (const QSizeF& size : qAsConst(m_sizes))
        m_widestPage = std::max(m_widestPage, size.width());
    m_state = m_problem == Problem::None ? Ready : Failed;
    Q_EMIT stateChanged();
}

RenderJobPointer ViewerDocument::render(int page, QSize pixels, QObject* context, const Receiver& receive)
{
    auto job = std::make_shared<RenderJob>();
    const QPointer<QObject> guard(context);
    inThread([this, page, pixels, guard, receive, job, pages = m_pages, everything = m_everything] {
        const auto isUnwanted = [&job, &everything] { return job->isUnwanted || everything->isUnwanted; };
        if (isUnwanted() || !*pages)
            return;
        const QImage image = drawn(**pages, page, pixels, isUnwanted);
        QMetaObject::invokeMethod(
                this,
                [guard, receive, job, image] {
                    if (guard && !job->isUnwanted)
                        receive(image);
                },
                Qt::QueuedConnection);
    });
    return job;
}

} // namespace uiutils::viewer
