#include "report/reportpreview.h"

#include "document/reporttemplate.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/pages/reportitem.h"
#include "writers/pages/reportpainter.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

namespace uiutils {

namespace {

/// How long the page waits before it handles events: not long enough to be noticed.
constexpr int sliceMs = 8;

QString orientationOf(const ReportTemplate& document)
{
    return document.getAttr(QStringLiteral("orientation")).toString();
}

} // namespace

/// The pages and how they come about.
class ReportPreviewPrivate
{
public:
    ~ReportPreviewPrivate() { forget(); }

    /// The writer of what is to be shown; null if there is nothing. May delete the preview.
    std::unique_ptr<TemplateToPdfWriter> makeWriter();
    void begin(TemplateToPdfWriter& writer);
    /// Lays out for a while. Returns whether more is to be done.
    bool layOut() const;
    void forget();

    QPointer<Report> report;
    QPointer<ReportTemplate> document;
    QList<ReportItem*> items;
    std::unique_ptr<ReportPainter> painter;
    QTimer nextSlice;
    int pageCount = 0;
    bool isBusy = false;
};

std::unique_ptr<TemplateToPdfWriter> ReportPreviewPrivate::makeWriter()
{
    // The pass of a print that is running would be disturbed.
    if (ReportPDF::isPrinting())
        return nullptr;
    if (report)
        return report->makePdfWriter(&items);
    if (!document)
        return nullptr;
    auto writer = std::make_unique<TemplateToPdfWriter>(*document, &items);
    writer->setAttribute(QStringLiteral("orientation"), orientationOf(*document));
    return writer;
}

void ReportPreviewPrivate::begin(TemplateToPdfWriter& writer)
{
    forget();
    writer.collectItems();
    painter = std::make_unique<ReportPainter>(writer.pages());
}

bool ReportPreviewPrivate::layOut() const
{
    QElapsedTimer timer;
    timer.start();
    while (painter->layOutMore()) {
        if (timer.hasExpired(sliceMs))
            return true;
    }
    return false;
}

void ReportPreviewPrivate::forget()
{
    nextSlice.stop();
    painter.reset();
    deleteItemsOfPasses(items);
}

ReportPreview::ReportPreview(QObject* parent)
    : QAbstractListModel(parent)
    , d(std::make_unique<ReportPreviewPrivate>())
{
    d->nextSlice.setInterval(0);
    connect(&d->nextSlice, &QTimer::timeout, this, &ReportPreview::layOut);
}

ReportPreview::~ReportPreview() = default;

Report* ReportPreview::report() const
{
    return d->report;
}

void ReportPreview::setReport(Report* report)
{
    if (report == d->report)
        return;
    d->report = report;
    Q_EMIT reportChanged();
}

ReportTemplate* ReportPreview::document() const
{
    return d->document;
}

void ReportPreview::setDocument(ReportTemplate* document)
{
    if (document == d->document)
        return;
    d->document = document;
    Q_EMIT documentChanged();
}

int ReportPreview::pageCount() const
{
    return d->pageCount;
}

bool ReportPreview::isBusy() const
{
    return d->isBusy;
}

int ReportPreview::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->pageCount;
}

QVariant ReportPreview::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case PageWidthRole:
        return pageSize(index.row()).width();
    case PageHeightRole:
        return pageSize(index.row()).height();
    default:
        return {};
    }
}

QHash<int, QByteArray> ReportPreview::roleNames() const
{
    return {{PageWidthRole, "pageWidth"}, {PageHeightRole, "pageHeight"}};
}

void ReportPreview::show()
{
    clear();
    // The controller builds its document now, and a page may do anything then.
    const QPointer<ReportPreview> guard(this);
    const std::unique_ptr<TemplateToPdfWriter> writer = d->makeWriter();
    if (!guard || !writer)
        return;
    clear();
    d->begin(*writer);
    d->nextSlice.start();
    setBusy(true);
}

void ReportPreview::layOut()
{
    if (d->layOut())
        return;
    d->nextSlice.stop();
    addPages();
}

void ReportPreview::addPages()
{
    const QPointer<ReportPreview> guard(this);
    const int pageCount = d->painter->pageCount();
    if (pageCount > 0) {
        beginInsertRows({}, 0, pageCount - 1);
        d->pageCount = pageCount;
        endInsertRows();
        Q_EMIT pageCountChanged();
    }
    if (guard)
        setBusy(false);
}

void ReportPreview::clear()
{
    d->forget();
    if (d->pageCount > 0) {
        beginResetModel();
        d->pageCount = 0;
        endResetModel();
        Q_EMIT pageCountChanged();
    }
    setBusy(false);
}

void ReportPreview::setBusy(bool isBusy)
{
    if (isBusy == d->isBusy)
        return;
    d->isBusy = isBusy;
    Q_EMIT busyChanged();
}

QSizeF ReportPreview::pageSize(int page) const
{
    return d->painter ? d->painter->pageSize(page) : QSizeF();
}

void ReportPreview::paint(QPainter& painter, int page) const
{
    if (d->painter && page < d->pageCount)
        d->painter->paint(painter, page);
}

} // namespace uiutils
