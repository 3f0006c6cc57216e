#include "writers/pages/reportpdf_p.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/statusicons_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>
#include <QPointer>
#include <QScopedValueRollback>

namespace {

/// The structure of more rows makes a file four times as large.
constexpr int mostTaggedRows = 20000;

bool isAnyPrinting = false;

} // namespace

bool uiutils::ReportPDFPrivate::isTagged() const
{
    if (structure != ReportPDF::AutomaticStructure)
        return structure == ReportPDF::WithStructure;
    int rows = 0;
    for (const ReportItem* item : items) {
        const auto* const table = dynamic_cast<const ReportTable*>(item);
        rows += table ? table->rowCount() : 0;
    }
    return isArchive || rows <= mostTaggedRows;
}

uiutils::PageSettings uiutils::ReportPDFPrivate::settings() const
{
    PageSettings settings;
    settings.surroundings.titleBlock = {decodedImage(readIcon(logo)), documentTitle, title, fields};
    settings.surroundings.frame = {documentTitle, title, unitId, timestamp};
    settings.surroundings.turnsWideTables = tableOrientation == ReportPDF::AutomaticOrientation;
    settings.orientation = orientation == ReportPDF::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    pdf::DocumentInformation& about = settings.document.information;
    about.title = title.isEmpty() ? documentTitle : title;
    about.author = author;
    about.subject = subject;
    about.creator = QStringLiteral("uiutils");
    about.producer = producer;
    const QDateTime now = QDateTime::currentDateTime();
    about.created = now.toOffsetFromUtc(now.offsetFromUtc());
    settings.document.language = QLocale().bcp47Name();
    settings.document.isArchive = isArchive;
    settings.document.isTagged = isTagged();
    return settings;
}

/// One run of the printer. A slot of progressChanged() may delete the renderer; the run then counts as cancelled.
class ReportPDF::Job
{
public:
    explicit Job(ReportPDF& owner);

    /// The complete file; nothing if it was cancelled, or could not be made for the reason in `error`.
    QByteArray run(QString* error);

private:
    bool tellProgress(int page, int pageCount);

    QPointer<ReportPDF> m_owner;
};

ReportPDF::Job::Job(ReportPDF& owner)
    : m_owner(&owner)
{
}

bool ReportPDF::Job::tellProgress(int page, int pageCount)
{
    if (m_owner && !m_owner->d->isCancelled)
        Q_EMIT m_owner->progressChanged(page, pageCount);
    return m_owner && !m_owner->d->isCancelled;
}

QByteArray ReportPDF::Job::run(QString* error)
{
    QByteArray file;
    QBuffer printed(&file);
    printed.open(QIODevice::WriteOnly);
    uiutils::PagePrinter printer(m_owner->d->settings(), m_owner->d->items,
            [this](int page, int count) { return tellProgress(page, count); });
    return printer.print(&printed, error) == uiutils::PagePrinter::Printed ? file : QByteArray();
}

ReportPDF::ReportPDF(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<uiutils::ReportPDFPrivate>())
{
}

ReportPDF::~ReportPDF() = default;

void ReportPDF::setItems(const QList<ReportItem*>& items)
{
    d->items = items;
}

void ReportPDF::setOrientation(Orientation orientation)
{
    d->orientation = orientation;
}

void ReportPDF::setTableOrientation(TableOrientation orientation)
{
    d->tableOrientation = orientation;
}

void ReportPDF::setDocumentTitle(const QString& title)
{
    d->documentTitle = title;
}

void ReportPDF::setTitle(const QString& title)
{
    d->title = title;
}

void ReportPDF::setAuthor(const QString& author)
{
    d->author = author;
}

void ReportPDF::setSubject(const QString& subject)
{
    d->subject = subject;
}

void ReportPDF::setProducer(const QString& producer)
{
    d->producer = producer;
}

void ReportPDF::setLogo(const QString& path)
{
    d->logo = path;
}

void ReportPDF::setUnitId(const QString& id)
{
    d->unitId = id;
}

void ReportPDF::setTimestamp(const QString& text)
{
    d->timestamp = text;
}

void ReportPDF::setFields(const QVector<Field>& fields)
{
    d->fields = fields;
}

void ReportPDF::setStructure(Structure structure)
{
    d->structure = structure;
}

void ReportPDF::setArchive(bool isArchive)
{
    d->isArchive = isArchive;
}

bool ReportPDF::isPrinting()
{
    return isAnyPrinting;
}

bool ReportPDF::print(const QString& path, QString* error)
{
    QString ignored;
    QString& message = error ? *error : ignored;
    const QByteArray file = toPdf(&message);
    if (!file.isEmpty())
        return uiutils::writeFileDurably(uiutils::onDisk(path), file, &message);
    if (!message.isEmpty())
        message = tr("Cannot print %1: %2").arg(path, message);
    return false;
}

QByteArray ReportPDF::toPdf(QString* error)
{
    QString ignored;
    QString& message = error ? *error : ignored;
    message.clear();
    if (isAnyPrinting) {
        message = tr("another file is being printed");
        return QByteArray();
    }
    // Otherwise Qt would end the program.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        message = tr("the program has no fonts, because it is not a QGuiApplication");
        return QByteArray();
    }
    const QScopedValueRollback<bool> printing(isAnyPrinting, true);
    d->isCancelled = false;
    return Job(*this).run(&message);
}

void ReportPDF::cancel()
{
    d->isCancelled = true;
}
