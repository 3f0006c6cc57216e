#include "options.h"

#include "texts.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>
#include <QThread>

namespace uiutils::convert {

namespace {

const QLatin1String everyFormat("all");

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

/// The rows of the format table for the help.
QString formatHelp()
{
    QString text;
    for (const Format* format : allFormats()) {
        text += QStringLiteral("                           %1  %2\n")
                        .arg(format->name, -5)
                        .arg(Texts::tr(format->description));
    }
    return text;
}

/// In the form that help2man reads: the parser's own text has no sections for exit status and examples.
QString helpText()
{
    return Texts::tr(R"(Usage: reportconvert [OPTION]... DOCUMENT...
Convert report documents of the instrument (JSON) to HTML, PDF, XML, JSON,
plain text or CSV.

A DOCUMENT is a file of up to 16 MiB, "-" for standard input, or a folder, whose
documents (*.json) are converted. Several are converted at once, each
separately: one that fails is named and does not stop the others, and the last
line says how many were converted and which were not.
Existing files are replaced only by complete ones, and a document never by its
own output.

Options:
  -f, --format=FORMAT    write FORMAT; may be given more than once, and may be
                         left out when OUTPUT has the suffix of one:
%1                           all    every format
  -o, --output=OUTPUT    where to write: a folder (created when OUTPUT ends in
                         "/"; default: the current one), which gets a file with
                         the document's name and the format's suffix, "report"
                         for standard input; or, for one document and one
                         format, a file, or "-" for standard output; without it,
                         the documents of a folder are converted in that folder
  -s, --services=FOLDER  fill the tables about unit, user and job, and the
                         plots, from the service files in FOLDER; may be given
                         more than once or with colons; without it those tables
                         are left out and plots are empty
      --title=TEXT       title of HTML, PDF and plain texts, in place of the
                         document's
      --logo=FILE        picture in place of the logo of HTML and PDF, up to
                         1 MiB
      --no-logo          leave the logo out
      --style=STYLE      of HTML pages: classic (the default) or modern, for
                         phones, dark screens, paper and programs that read
                         aloud
      --orientation=WAY  of PDF pages, and of modern HTML pages on paper:
                         portrait or landscape; without it as the document says
      --archive          PDF files for archives (PDF/A-2u): all that is needed
                         to show and read them is inside
      --unit-id=TEXT     unit in the footer of PDF pages, in place of the one
                         that the services name
      --csv=FORM         of CSV: "files", a folder with the document's name that
                         holds a file for each table; "zip", all of them in one
                         ".zip" file; or "auto" (default): a document of one
                         table is a ".csv" file, one of several a ".zip" file
      --decimal-comma    CSV with decimal commas, and ";" between the fields
      --no-bom           CSV without the mark by which spreadsheets recognize
                         UTF-8
      --preview          show the pages of the PDF file of one DOCUMENT in a
                         window, and write nothing; with --output=FOLDER write
                         them as pictures (PNG, 150 dots per inch) into a folder
                         there with the document's name, without a window
  -j, --jobs=N           convert N documents at once, in processes that take one
                         after the other; default: as many as there are
                         processors
      --strict           a document that does not have the layout of a report
                         document, or a service file that cannot be used, is an
                         error; without it a warning
  -h, --help             show this help
  -v, --version          show the version

Exit status:
  0      every document was converted
  1      one or more could not be read or written; the messages say which
  2      the command line is wrong, or would have one file written twice or a
         document overwritten; nothing was written
  128+N  stopped by signal N; files that were written are complete

Environment:
  UIUTILS_ROOT  folder of status icons (base/qml/common/images) and temporary
                plot images (tmp) in place of the program's own temporary one
  TMPDIR        where that temporary folder is created
  KIV_PLATFORM  "bus": without --services the tables and plots are filled from
                the services on the bus

Examples:
  reportconvert --format html report.json
                    writes report.html into the current folder

  reportconvert --format all --services services --output converted/ *.json
                    writes every document in every format into "converted"

  reportconvert --format csv --decimal-comma measured/
                    converts the folder "measured" for a spreadsheet

  reportconvert --format xml --output - - < report.json | xmllint -
                    converts from standard input to standard output
)")
            .arg(formatHelp());
}

/// Appends the formats that `name` stands for; false if there is none.
bool addFormats(const QString& name, QVector<const Format*>* formats)
{
    if (name == everyFormat) {
        *formats = allFormats();
        return true;
    }
    const Format* const format = formatByName(name);
    if (format && !formats->contains(format))
        *formats += format;
    return format;
}

const QLatin1String modernStyle("modern");

bool isStyle(const QString& text)
{
    return text == QLatin1String("classic") || text == modernStyle;
}

bool isOrientation(const QString& text)
{
    return text == QLatin1String("portrait") || text == QLatin1String("landscape");
}

QStringList splitFolders(const QStringList& values)
{
    return values.join(QLatin1Char(':')).split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

QCommandLineOption named(const char* shortName, const char* longName, const char* value)
{
    return QCommandLineOption({QLatin1String(shortName), QLatin1String(longName)}, {}, QLatin1String(value));
}

/// The options that the parser knows; helpText() describes them.
struct KnownOptions
{
    const QCommandLineOption format = named("f", "format", "FORMAT");
    const QCommandLineOption output = named("o", "output", "OUTPUT");
    const QCommandLineOption services = named("s", "services", "FOLDER");
    const QCommandLineOption title {QStringLiteral("title"), {}, QStringLiteral("TEXT")};
    const QCommandLineOption logo {QStringLiteral("logo"), {}, QStringLiteral("FILE")};
    const QCommandLineOption noLogo {QStringLiteral("no-logo")};
    const QCommandLineOption orientation {QStringLiteral("orientation"), {}, QStringLiteral("WAY")};
    const QCommandLineOption style {QStringLiteral("style"), {}, QStringLiteral("STYLE")};
    const QCommandLineOption archive {QStringLiteral("archive")};
    const QCommandLineOption unitId {QStringLiteral("unit-id"), {}, QStringLiteral("TEXT")};
    const QCommandLineOption csv {QStringLiteral("csv"), {}, QStringLiteral("FORM")};
    const QCommandLineOption decimalComma {QStringLiteral("decimal-comma")};
    const QCommandLineOption noMark {QStringLiteral("no-bom")};
    const QCommandLineOption jobs = named("j", "jobs", "N");
    const QCommandLineOption preview {QStringLiteral("preview")};
    const QCommandLineOption strict {QStringLiteral("strict")};
};

// Each reads a part of the options. It returns what is wrong with the command line, or an empty text.

QString readDocuments(const QCommandLineParser& parser, const KnownOptions&, Options* options)
{
    options->documents = parser.positionalArguments();
    if (options->documents.isEmpty())
        return Texts::tr("No document is given; \"-\" reads one from standard input.");
    if (options->documents.contains(QString()))
        return Texts::tr("The name of a document is empty.");
    return QString();
}

QString readFormats(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    const QStringList formats = parser.values(known.format);
    for (const QString& name : formats) {
        if (!addFormats(name, &options->formats))
            return Texts::tr("There is no format \"%1\", only %2 and all.").arg(name, formatNames());
    }
    return QString();
}

QString readPlaces(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    options->output = parser.isSet(known.output) ? parser.value(known.output) : QStringLiteral(".");
    if (options->output.isEmpty())
        return Texts::tr("--output needs the name of a folder or file, or \"-\".");
    options->isPlaceGiven = parser.isSet(known.output);
    options->serviceFolders = splitFolders(parser.values(known.services));
    if (parser.isSet(known.services) && options->serviceFolders.isEmpty())
        return Texts::tr("--services needs the name of a folder.");
    return QString();
}

QString readPage(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    if (parser.isSet(known.logo) && parser.isSet(known.noLogo))
        return Texts::tr("--logo and --no-logo cannot be used together.");
    if (parser.isSet(known.logo) && parser.value(known.logo).isEmpty())
        return Texts::tr("--logo needs the name of a picture file.");
    if (parser.isSet(known.orientation) && !isOrientation(parser.value(known.orientation)))
        return Texts::tr("There is no orientation \"%1\", only portrait and landscape.")
                .arg(parser.value(known.orientation));
    if (parser.isSet(known.style) && !isStyle(parser.value(known.style)))
        return Texts::tr("There is no style \"%1\", only classic and modern.").arg(parser.value(known.style));
    if (parser.isSet(known.title))
        options->page.title = parser.value(known.title);
    options->page.hasLogo = !parser.isSet(known.noLogo);
    options->page.logoFile = parser.value(known.logo);
    options->page.orientation = parser.value(known.orientation);
    options->page.isModern = parser.value(known.style) == modernStyle;
    options->page.isArchive = parser.isSet(known.archive);
    options->page.unitId = parser.value(known.unitId);
    return QString();
}

QString readPreview(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    options->isPreview = parser.isSet(known.preview);
    if (options->isPreview && parser.isSet(known.format))
        return Texts::tr("--preview and --format cannot be used together.");
    return QString();
}

QString readJobs(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    constexpr int most = 256;
    bool isNumber = true;
    options->jobs = parser.isSet(known.jobs) ? parser.value(known.jobs).toInt(&isNumber) : QThread::idealThreadCount();
    options->jobs = qMin(options->jobs, most);
    return isNumber && options->jobs > 0 ? QString() : Texts::tr("--jobs needs a number of processes, 1 or more.");
}

QString readTables(const QCommandLineParser& parser, const KnownOptions& known, Options* options)
{
    const QHash<QString, Packing> forms {{QString(), Packing::AsNeeded}, {QStringLiteral("auto"), Packing::AsNeeded},
            {QStringLiteral("files"), Packing::Files}, {QStringLiteral("zip"), Packing::Packed}};
    const QString form = parser.value(known.csv);
    if (!forms.contains(form) || (form.isEmpty() && parser.isSet(known.csv)))
        return Texts::tr("There is no form \"%1\" of CSV, only auto, files and zip.").arg(form);
    options->tables = {forms.value(form), parser.isSet(known.decimalComma), !parser.isSet(known.noMark)};
    return QString();
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    const KnownOptions known;
    QCommandLineParser parser;
    parser.addOptions({known.format, known.output, known.services, known.title, known.logo, known.noLogo, known.style,
            known.orientation, known.archive, known.unitId, known.csv, known.decimalComma, known.noMark, known.jobs,
            known.preview, known.strict});
    const QString version = QStringLiteral("reportconvert (uiutils) %1\n").arg(QCoreApplication::applicationVersion());
    const apps::CommandLine line = apps::parse(parser, arguments, {helpText(), version});
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);

    Options options;
    for (const auto read : {readDocuments, readFormats, readPlaces, readPage, readTables, readPreview, readJobs}) {
        const QString problem = read(parser, known, &options);
        if (!problem.isEmpty())
            return misused(problem);
    }
    options.isStrict = parser.isSet(known.strict);
    return options;
}

} // namespace uiutils::convert
