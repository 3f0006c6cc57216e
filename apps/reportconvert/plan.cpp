#include "plan.h"

#include "preview.h"
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

/// The same for all names of a file that may not exist yet. Folders have many targets and are looked up once.
class Places
{
public:
    QString of(const QString& path)
    {
        const QFileInfo file(path);
        QString& folder = m_folders[file.path()];
        if (folder.isEmpty()) {
            const QString real = QFileInfo(file.path()).canonicalFilePath();
            folder = real.isEmpty() ? QDir::cleanPath(QFileInfo(file.path()).absoluteFilePath()) : real;
        }
        return folder + QLatin1Char('/') + file.fileName();
    }

private:
    QHash<QString, QString> m_folders;
};

QString clashOf(const QVector<Job>& jobs)
{
    QHash<QString, QString> documentOf;
    Places places;
    for (const Job& job : jobs) {
        for (const Target& target : job.targets) {
            const QStringList paths = target.path.isEmpty() ? QStringList() : target.paths();
            for (const QString& path : paths) {
                const QString place = places.of(path);
                if (documentOf.contains(place)) {
                    return Texts::tr("%1 and %2 would both be written to %3. Convert them in two calls, into different "
                                     "folders.")
                            .arg(documentOf.value(place), job.name(), path);
                }
                documentOf.insert(place, job.name());
            }
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
            const QStringList paths = target.path.isEmpty() ? QStringList() : target.paths();
            for (const QString& path : paths) {
                const std::optional<Identity> identity = identityOf(path);
                if (identity && documents.contains(*identity)) {
                    return Texts::tr("%1 would overwrite the document %2. Name another folder or file with --output.")
                            .arg(path, documents.value(*identity));
                }
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

/// A document of the call and the folder that its files are written to.
struct Source
{
    QString document;
    QString folder;
};

/// The documents in the order of the call, those of folders in the order of their names. The files of a folder are
/// written beside its documents if the call names no other place.
QVector<Source> sourcesOf(const Options& options, QString* error)
{
    QVector<Source> sources;
    for (const QString& document : options.documents) {
        if (isStandardStream(document) || !QFileInfo(document).isDir()) {
            sources += {document, options.output};
            continue;
        }
        const QDir folder(document);
        const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        if (names.isEmpty())
            *error = Texts::tr("The folder %1 has no document (*.json).").arg(document);
        for (const QString& name : names)
            sources += {folder.filePath(name), options.isPlaceGiven ? options.output : document};
    }
    return sources;
}

Target targetIn(const Source& source, const Format* format, Packing packing)
{
    const QString stem = QDir::cleanPath(QDir(source.folder).filePath(baseName(source.document)));
    const auto path = [&](QLatin1String suffix) { return QString(stem + QLatin1Char('.') + suffix); };
    if (!format->has(Format::HasTables))
        return {format, path(format->suffix)};
    switch (packing) {
    case Packing::Files:
        return {format, stem, packing};
    case Packing::Packed:
        return {format, path(format->packedSuffix), packing};
    default:
        return {format, path(format->suffix), packing, path(format->packedSuffix)};
    }
}

Plan intoFolders(const Options& options, const QVector<Source>& sources)
{
    Plan plan;
    const bool isNew = !QFileInfo(options.output).isDir();
    for (const Source& source : sources) {
        Job job {source.document, {}};
        for (const Format* format : options.formats) {
            job.targets += targetIn(source, format, options.tables.packing);
            const Target& target = job.targets.constLast();
            if (target.packing == Packing::Files)
                plan.newFolders += target.path;
            else if (isNew)
                plan.newFolders += QFileInfo(target.path).path();
        }
        plan.jobs += job;
    }
    return plan;
}

/// What a single file or standard output holds: its reader expects one form.
Packing packingOfOne(const Options& options)
{
    const Format* const format = options.formats.constFirst();
    const QString suffix = QFileInfo(options.output).suffix().toLower();
    const bool isPacked = options.tables.packing == Packing::Packed || suffix == format->packedSuffix;
    return isPacked && format->has(Format::HasTables) ? Packing::Packed : Packing::Single;
}

/// The plan for standard output or a single file.
Plan intoOne(const Options& options, const QVector<Source>& sources)
{
    const bool toStandardOutput = isStandardStream(options.output);
    const bool isOne = sources.size() == 1 && options.formats.size() == 1;
    if (isOne && options.formats.constFirst()->has(Format::HasTables) && options.tables.packing == Packing::Files)
        return rejected(Texts::tr("--csv=files writes a folder for each document. Name a folder with --output."));
    if (!isOne) {
        return rejected(toStandardOutput
                        ? Texts::tr("Standard output takes one document in one format. Name a folder with --output.")
                        : Texts::tr("%1 is not a folder, and a file takes one document in one format. To create a "
                                    "folder, end its name with \"/\".")
                                  .arg(options.output));
    }
    Plan plan;
    const Target target {
            options.formats.constFirst(), toStandardOutput ? QString() : options.output, packingOfOne(options)};
    plan.jobs += Job {sources.constFirst().document, {target}};
    return plan;
}

/// The error for an option that affects none of the requested formats.
QString idleOption(const Options& options, const Plan& plan)
{
    const PageSettings& page = options.page;
    if (!page.title.isNull() && !plan.writes(Format::HasTitle))
        return Texts::tr(
                "--title changes HTML pages, PDF files, plain texts and CSV files only, and none is requested.");
    if ((!page.hasLogo || !page.logoFile.isEmpty()) && !plan.writes(Format::IsPage))
        return Texts::tr("--logo and --no-logo change HTML pages and PDF files only, and none is requested.");
    if (page.isModern && !plan.writes(Format::HasStyles))
        return Texts::tr("--style changes HTML pages only, and none is requested.");
    if (!page.orientation.isEmpty() && !page.isModern && !plan.writes(Format::IsPaper))
        return Texts::tr("--orientation changes PDF files and modern HTML pages only, and none is requested.");
    if (!page.unitId.isEmpty() && !plan.writes(Format::IsPaper))
        return Texts::tr("--unit-id changes PDF files only, and none is requested.");
    const bool isTablesDefault = options.tables.packing == Packing::AsNeeded && !options.tables.hasDecimalComma
            && options.tables.hasByteOrderMark;
    if (!isTablesDefault && !plan.writes(Format::HasTables))
        return Texts::tr("--csv, --decimal-comma and --no-bom change CSV files only, and none is requested.");
    return {};
}

/// The pages of a document in a window, or of any documents as pictures in folders.
Plan previewPlan(Options options)
{
    options.formats = {&previewFormat()};
    if (options.opensWindow()) {
        const QStringList& documents = options.documents;
        if (documents.size() != 1
                || (!isStandardStream(documents.constFirst()) && QFileInfo(documents.constFirst()).isDir()))
            return rejected(Texts::tr("--preview shows one document. To get pictures of several, name a folder with "
                                      "--output."));
        Plan plan;
        plan.jobs += Job {documents.constFirst(), {Target {options.formats.constFirst(), QString()}}};
        return plan;
    }
    if (isStandardStream(options.output))
        return rejected(Texts::tr("--preview writes a folder for each document. Name a folder with --output."));
    options.tables.packing = Packing::Files;
    QString missing;
    const QVector<Source> sources = sourcesOf(options, &missing);
    if (!missing.isEmpty())
        return rejected(missing);
    Plan plan = intoFolders(options, sources);
    plan.error = clashOf(plan.jobs);
    return plan;
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

bool Plan::writes(Format::Trait trait) const
{
    return std::any_of(jobs.begin(), jobs.end(), [trait](const Job& job) {
        return std::any_of(job.targets.begin(), job.targets.end(),
                [trait](const Target& target) { return target.format->has(trait); });
    });
}

Plan makePlan(const Options& given)
{
    if (given.isPreview)
        return previewPlan(given);
    Options options = given;
    const bool writesFolder = !isStandardStream(options.output) && isFolder(options.output);
    if (options.formats.isEmpty()) {
        const Format* const format
                = writesFolder ? nullptr : formatBySuffix(QFileInfo(options.output).suffix().toLower());
        if (!format)
            return rejected(Texts::tr("Name a format with --format: %1 or all.").arg(formatNames()));
        options.formats += format;
    }
    QString missing;
    const QVector<Source> sources = sourcesOf(options, &missing);
    if (!missing.isEmpty())
        return rejected(missing);
    Plan plan = writesFolder ? intoFolders(options, sources) : intoOne(options, sources);
    if (plan.error.isEmpty())
        plan.error = idleOption(options, plan);
    if (plan.error.isEmpty())
        plan.error = clashOf(plan.jobs);
    if (plan.error.isEmpty())
        plan.error = overwrittenDocument(plan.jobs);
    return plan;
}

} // namespace uiutils::convert
