#include "plan.h"

#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace uiutils::convert {

namespace {

bool isStandardStream(const QString& name)
{
    return name == standardStream;
}

bool isFolder(const QString& output)
{
    return output.endsWith(QLatin1Char('/')) || QFileInfo(output).isDir();
}

/// "report" of "/tmp/report.json"; a name without that suffix is unchanged.
QString baseName(const QString& document)
{
    if (isStandardStream(document))
        return QStringLiteral("report");
    const QString name = QFileInfo(document).fileName();
    const QLatin1String suffix(".json");
    const bool isLonger = name.size() > suffix.size();
    return isLonger && name.endsWith(suffix, Qt::CaseInsensitive) ? name.chopped(suffix.size()) : name;
}

/// Device and inode, which all names of a file share.
using Identity = std::pair<dev_t, ino_t>;

std::optional<Identity> identityOf(const QString& document)
{
    struct stat status = {};
    const int result = isStandardStream(document) ? ::fstat(STDIN_FILENO, &status)
                                                  : ::stat(QFile::encodeName(document).constData(), &status);
    if (result != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return Identity(status.st_dev, status.st_ino);
}

/// All targets are in one folder, so that two of them are the same file only when their names are equal.
QString clashOf(const QVector<Job>& jobs)
{
    QHash<QString, QString> documentOf;
    for (const Job& job : jobs) {
        for (const Target& target : job.targets) {
            if (documentOf.contains(target.path)) {
                return Texts::tr("%1 and %2 would both be written to %3. Convert them in two calls, into different "
                                 "folders.")
                        .arg(documentOf.value(target.path), job.name(), target.path);
            }
            documentOf.insert(target.path, job.name());
        }
    }
    return {};
}

QString overwrittenDocument(const QVector<Job>& jobs)
{
    QHash<Identity, QString> documents;
    for (const Job& job : jobs) {
        if (const std::optional<Identity> identity = identityOf(job.document))
            documents.insert(*identity, job.name());
    }
    for (const Job& job : jobs) {
        for (const Target& target : job.targets) {
            const std::optional<Identity> identity = identityOf(target.path);
            if (identity && documents.contains(*identity)) {
                return Texts::tr("%1 would overwrite the document %2. Name another folder or file with --output.")
                        .arg(target.path, documents.value(*identity));
            }
        }
    }
    return {};
}

Plan rejected(const QString& error)
{
    Plan plan;
    plan.error = error;
    return plan;
}

Plan intoFolder(const Options& options)
{
    Plan plan;
    for (const QString& document : options.documents) {
        Job job {document, {}};
        for (const Format* format : options.formats) {
            const QString file = baseName(document) + QLatin1Char('.') + format->suffix;
            job.targets += Target {format, QDir::cleanPath(QDir(options.output).filePath(file))};
        }
        plan.jobs += job;
    }
    if (!QFileInfo(options.output).isDir())
        plan.newFolder = options.output;
    return plan;
}

/// The plan for standard output or a single file.
Plan intoOne(const Options& options)
{
    const bool toStandardOutput = isStandardStream(options.output);
    if (options.documents.size() > 1 || options.formats.size() > 1) {
        return rejected(toStandardOutput
                        ? Texts::tr("Standard output takes one document in one format. Name a folder with --output.")
                        : Texts::tr("%1 is not a folder, and a file takes one document in one format. To create a "
                                    "folder, end its name with \"/\".")
                                  .arg(options.output));
    }
    Plan plan;
    const Target target {options.formats.constFirst(), toStandardOutput ? QString() : options.output};
    plan.jobs += Job {options.documents.constFirst(), {target}};
    return plan;
}

/// The error for an option that affects none of the requested formats.
QString idleOption(const PageSettings& page, const Plan& plan)
{
    if (!page.title.isNull() && !plan.writes(&Format::hasTitle))
        return Texts::tr("--title changes HTML pages, PDF files and plain texts only, and none is requested.");
    if ((!page.hasLogo || !page.logoFile.isEmpty()) && !plan.writes(&Format::isPage))
        return Texts::tr("--logo and --no-logo change HTML pages and PDF files only, and none is requested.");
    if (page.isModern && !plan.writes(&Format::hasStyles))
        return Texts::tr("--style changes HTML pages only, and none is requested.");
    if (!page.orientation.isEmpty() && !page.isModern && !plan.writes(&Format::isPaper))
        return Texts::tr("--orientation changes PDF files and modern HTML pages only, and none is requested.");
    if (!page.unitId.isEmpty() && !plan.writes(&Format::isPaper))
        return Texts::tr("--unit-id changes PDF files only, and none is requested.");
    return {};
}

} // namespace

QString Job::name() const
{
    return isStandardStream(document) ? QStringLiteral("<standard input>") : document;
}

int Plan::targetCount() const
{
    int count = 0;
    for (const Job& job : jobs)
        count += job.targets.size();
    return count;
}

bool Plan::writes(bool Format::*flag) const
{
    return std::any_of(jobs.begin(), jobs.end(), [flag](const Job& job) {
        return std::any_of(
                job.targets.begin(), job.targets.end(), [flag](const Target& target) { return target.format->*flag; });
    });
}

Plan makePlan(const Options& given)
{
    Options options = given;
    const bool writesFolder = !isStandardStream(options.output) && isFolder(options.output);
    if (options.formats.isEmpty()) {
        const Format* const format
                = writesFolder ? nullptr : formatBySuffix(QFileInfo(options.output).suffix().toLower());
        if (!format)
            return rejected(Texts::tr("Name a format with --format: %1 or all.").arg(formatNames()));
        options.formats += format;
    }
    Plan plan = writesFolder ? intoFolder(options) : intoOne(options);
    if (plan.error.isEmpty())
        plan.error = idleOption(options.page, plan);
    if (plan.error.isEmpty())
        plan.error = clashOf(plan.jobs);
    if (plan.error.isEmpty())
        plan.error = overwrittenDocument(plan.jobs);
    return plan;
}

} // namespace uiutils::convert
