#include "writers/pages/reportpdf.h"

#include "base/durablefile.h"
#include "base/memoryfile_p.h"
#include "base/paths.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pageprinter_p.h"
#include "writers/pages/statusicons_p.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>

#include <cerrno>

namespace {

bool isAnyPrinting = false;

} // namespace

/// One run of the printer. A slot that hears of the progress may delete the renderer, which then counts as cancelled.
class ReportPDF::Job
{
public:
    explicit Job(ReportPDF& owner);

    /// The whole file; nothing when it was cancelled, or could not be made for the reason in `error`.
    QByteArray run(QString* error);

private:
    uiutils::PageSettings settings() const;
    bool tellProgress(int page, int pageCount);
    QByteArray finish(const QString& printed, const QVector<uiutils::pdf::OutlineEntry>& outline, QString* error) const;

    QPointer<ReportPDF> m_owner;
};

ReportPDF::Job::Job(ReportPDF& owner)
    : m_owner(&owner)
{
}

bool ReportPDF::Job::tellProgress(int page, int pageCount)
{
    if (m_owner && !m_owner->m_isCancelled)
        Q_EMIT m_owner->progressChanged(page, pageCount);
    return m_owner && !m_owner->m_isCancelled;
}

uiutils::PageSettings ReportPDF::Job::settings() const
{
    const ReportPDF& owner = *m_owner;
    return {{uiutils::decodedImage(uiutils::readIcon(owner.m_logo)), owner.m_documentTitle, owner.m_title,
                    owner.m_fields},
            {owner.m_documentTitle, owner.m_title, owner.m_unitId, owner.m_timestamp},
            owner.m_orientation == Landscape ? QPageLayout::Landscape : QPageLayout::Portrait};
}

QByteArray ReportPDF::Job::run(QString* error)
{
    const uiutils::MemoryFile printed;
    if (printed.path().isEmpty()) {
        *error = qt_error_string(errno);
        return QByteArray();
    }
    uiutils::PagePrinter printer(
            settings(), m_owner->m_items, [this](int page, int count) { return tellProgress(page, count); });
    switch (printer.print(printed.path())) {
    case uiutils::PagePrinter::Stopped:
        return QByteArray();
    case uiutils::PagePrinter::Failed:
        *error = tr("there is not enough memory for its pages");
        return QByteArray();
    case uiutils::PagePrinter::Printed:
        break;
    }
    return finish(printed.path(), printer.outline(), error);
}

/// A printer device tells nothing of what could not be written: only a file that can be read again to its end was
/// printed.
QByteArray ReportPDF::Job::finish(
        const QString& printed, const QVector<uiutils::pdf::OutlineEntry>& outline, QString* error) const
{
    const ReportPDF& owner = *m_owner;
    return uiutils::pdf::annotated(printed,
            {owner.m_title.isEmpty() ? owner.m_documentTitle : owner.m_title, owner.m_author, owner.m_subject,
                    owner.m_producer, outline},
            error);
}

ReportPDF::ReportPDF(QObject* parent)
    : QObject(parent)
    , m_documentTitle(tr("Solvant Report"))
    , m_logo(uiutils::paths::logo)
{
}

ReportPDF::~ReportPDF() = default;

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
    // The toolkit would end the program.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        message = tr("the program has no fonts, because it is not a QGuiApplication");
        return QByteArray();
    }
    const QScopedValueRollback<bool> printing(isAnyPrinting, true);
    m_isCancelled = false;
    return Job(*this).run(&message);
}

void ReportPDF::cancel()
{
    m_isCancelled = true;
}
