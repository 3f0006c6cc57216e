#include "writers/reportpdf.h"

#include "core/durablefile.h"
#include "core/paths.h"
#include "core/temporarysibling_p.h"
#include "writers/pageimage_p.h"
#include "writers/pageprinter_p.h"
#include "writers/statusicons_p.h"

#include <QFile>
#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>

#include <cerrno>

namespace {

bool isAnyPrinting = false;

} // namespace

/// One print(). A slot that hears of the progress may delete the renderer, which then counts as cancelled.
class ReportPDF::Job
{
public:
    Job(ReportPDF& owner, const QString& target);

    /// The file is whole, under its name and on the disk.
    bool run();
    QString error() const { return m_error; }

private:
    uiutils::PageSettings settings() const;
    bool tellProgress(int page, int pageCount);
    bool finish(const QString& printed, const QVector<uiutils::pdf::OutlineEntry>& outline);
    bool fail(const QString& text, const QString& reason);

    QPointer<ReportPDF> m_owner;
    QString m_target;
    QString m_error;
};

ReportPDF::Job::Job(ReportPDF& owner, const QString& target)
    : m_owner(&owner)
    , m_target(target)
{
}

bool ReportPDF::Job::fail(const QString& text, const QString& reason)
{
    m_error = text.arg(m_target, reason);
    return false;
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
    return {{uiutils::decodedImage(uiutils::readIcon(owner.m_logo)), owner.m_documentTitle, owner.m_title, owner.m_fields},
            {owner.m_documentTitle, owner.m_title, owner.m_unitId, owner.m_timestamp},
            owner.m_orientation == Landscape ? QPageLayout::Landscape : QPageLayout::Portrait};
}

bool ReportPDF::Job::run()
{
    const uiutils::TemporarySibling printed(m_target);
    if (!printed.isOpen())
        return fail(tr("Cannot create a file in the folder of %1: %2"), qt_error_string(errno));
    // The mode of the file that it is to replace may be one that nobody writes to, and the printer opens it anew.
    QFile::setPermissions(printed.path(), QFile::ReadOwner | QFile::WriteOwner);
    uiutils::PagePrinter printer(
            settings(), m_owner->m_items, [this](int page, int count) { return tellProgress(page, count); });
    switch (printer.print(printed.path())) {
    case uiutils::PagePrinter::Stopped:
        return false;
    case uiutils::PagePrinter::Failed:
        return fail(tr("Cannot write %1: %2"), tr("the disk took no more"));
    case uiutils::PagePrinter::Printed:
        break;
    }
    return finish(printed.path(), printer.outline());
}

/// A printer device tells nothing of a disk that took no more: only a file that can be read again to its end was printed.
bool ReportPDF::Job::finish(const QString& printed, const QVector<uiutils::pdf::OutlineEntry>& outline)
{
    const ReportPDF& owner = *m_owner;
    QString error;
    const QByteArray file = uiutils::pdf::annotated(printed,
            {owner.m_title.isEmpty() ? owner.m_documentTitle : owner.m_title, owner.m_author, owner.m_subject,
                    owner.m_producer, outline},
            &error);
    if (file.isEmpty())
        return fail(tr("Cannot write %1: %2"), error);
    return uiutils::writeFileDurably(m_target, file, &m_error);
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
    if (isAnyPrinting) {
        message = tr("Cannot print %1 while another file is being printed.").arg(path);
        return false;
    }
    // The toolkit would end the program.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        message = tr("Cannot print %1: the program has no fonts, because it is not a QGuiApplication.").arg(path);
        return false;
    }
    const QScopedValueRollback<bool> printing(isAnyPrinting, true);
    m_isCancelled = false;
    Job job(*this, uiutils::onDisk(path));
    const bool isPrinted = job.run();
    message = job.error();
    return isPrinted;
}

void ReportPDF::cancel()
{
    m_isCancelled = true;
}
