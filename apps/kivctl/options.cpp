#include "options.h"

#include "base/root_p.h"
#include "common/serviceoptions.h"
#include "recordingoptions.h"
#include "texts.h"
#include "ui_host/describedservices_p.h"

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <climits>
#include <iterator>

namespace uiutils::kivctl {

namespace {

constexpr int defaultTimeoutMs = 5000;

struct Syntax
{
    Command command;
    const char* name;
    const char* usage;
    int leastOperands;
    int mostOperands;
};

constexpr Syntax syntaxes[] = {
        {Command::List, "list", "list [PREFIX]", 0, 1},
        {Command::Get, "get", "get ID...", 1, INT_MAX},
        {Command::Set, "set", "set ID VALUE", 2, 2},
        {Command::Batch, "batch", "batch FILE", 1, 1},
        {Command::Action, "action", "action ID [ARGUMENT]", 1, 2},
        {Command::Watch, "watch", "watch [PREFIX]", 0, 1},
        {Command::Dump, "dump", "dump SERVICE", 1, 1},
        {Command::Load, "load", "load SERVICE FILE", 2, 2},
        {Command::Services, "services", "services", 0, 0},
        {Command::Record, "record", "record FILE", 1, 1},
        {Command::Replay, "replay", "replay FILE", 1, 1},
};

/// Null for a name that no command has.
const Syntax* syntaxOf(const QString& name)
{
    const auto* const syntax = std::find_if(std::begin(syntaxes), std::end(syntaxes),
            [&name](const Syntax& each) { return name == QLatin1String(each.name); });
    return syntax == std::end(syntaxes) ? nullptr : syntax;
}

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

/// In the shape that help2man reads.
QString helpText()
{
    return Texts::tr(R"(Usage: kivctl [OPTION]... COMMAND [ARGUMENT]...
Read, set, watch and record the items of the instrument's services.

Commands:
  list [PREFIX]         list the items whose id begins with PREFIX, or all: id,
                        type, value, unit and label
  get ID...             print the values of items, a line each
  set ID VALUE          set a setting; of an enumeration VALUE is a number or
                        the name of a choice, of an array or aggregate JSON
  batch FILE            set the settings that FILE holds, a JSON object of
                        values by ids or names of settings: all or none
  action ID [ARGUMENT]  carry out an action and print the answer
  watch [PREFIX]        print items now and whenever one changes, until SIGINT or
                        SIGTERM: id, value, unit and state
  dump SERVICE          print the settings of a service as JSON, by their ids
  load SERVICE FILE     set the settings of a service as FILE, made by "dump",
                        has them: all or none
  services              list the services: name and number of items
  record FILE           write every change of the services to FILE, with
                        everything that they are at its beginning, until SIGINT
                        or SIGTERM
  replay FILE           publish the services of a recording on the bus and change
                        them as they were changed; meanwhile an empty line on
                        standard input pauses it or lets it go on, and a number
                        of seconds jumps there

Columns are separated by tabs. A control character in a text is shown as an
escape such as \n or \u001B. The FILE "-" is standard input.

Options:
  -j, --json             print a JSON document; "watch" prints a JSON document on
                         each line
  -t, --timeout=MS       wait for MS milliseconds at most until the services have
                         been read, and for the answer to an action or a batch
                         (default: %1); a single setting waits for 500 ms
  -s, --services=FOLDER  use no bus, but the services that the service files in
                         FOLDER describe; may be given more than once
      --root=FOLDER      without a bus: keep settings below FOLDER (default:
                         %2)
      --only=SERVICE     record: this service alone; may be given more than once
      --duration=S       record: end after S seconds
      --gzip             record: compress, as a FILE that ends in .gz is
      --attribute=NAME   record: this attribute of items as well; may be given
                         more than once
      --speed=FACTOR     replay: so many times faster (default: 1)
      --from=S           replay: from second S on
      --loop             replay: begin again at the end
      --paused           replay: begin with a pause
  -h, --help             show this help
  -v, --version          show the version

Exit status:
  0  done
  1  failed or rejected; the message says why
  2  the command line is wrong
  3  there is no such item or service; the message names the nearest ones
  4  the bus or a service cannot be reached

Environment:
  KIV_PLATFORM  "bus" (the default): the services of other processes.
                "embedded": the services that KIV_SERVICES or --services describe
  KIV_BUS       "session" (the default) or "system"
  KIV_SERVICES  folders of service files, separated by colons
  UIUTILS_ROOT  in place of --root

Examples:
  kivctl list :config:basemgr:
                    lists the settings of the base manager

  kivctl watch --json :result:optical: | jq .value
                    prints each new value

  kivctl dump optical > optical.json && kivctl load optical optical.json
                    keeps the settings of a service, and brings them back

  kivctl record --duration 60 session.kivlog.gz
                    records a minute of everything

  kivctl replay --loop --speed 10 session.kivlog.gz
                    plays it ten times faster, over and over
)")
            .arg(QString::number(defaultTimeoutMs), defaultRoot(QStringLiteral("kivctl")));
}

bool looksLikeNumber(const QString& argument)
{
    return argument.size() > 1 && argument.startsWith(QLatin1Char('-'))
            && (argument.at(1).isDigit() || argument.at(1) == QLatin1Char('.'));
}

/// A negative number is a value and no option, wherever it stands.
QStringList withNumbersLast(const QStringList& arguments)
{
    QStringList words;
    QStringList numbers;
    for (int i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("--"))
            return words + QStringList(QStringLiteral("--")) + numbers + arguments.mid(i + 1);
        (looksLikeNumber(arguments.at(i)) ? numbers : words) += arguments.at(i);
    }
    return numbers.isEmpty() ? words : words + QStringList(QStringLiteral("--")) + numbers;
}

/// Takes the command and its operands. Returns why it cannot be carried out; empty when it can.
QString chooseCommand(QStringList words, Options* options)
{
    if (words.isEmpty())
        return Texts::tr("No command is given.");
    const QString name = words.takeFirst();
    const Syntax* const syntax = syntaxOf(name);
    if (!syntax)
        return Texts::tr("There is no command \"%1\".").arg(name);
    if (words.size() < syntax->leastOperands || words.size() > syntax->mostOperands)
        return Texts::tr("The command is used as \"kivctl %1\".").arg(QLatin1String(syntax->usage));
    options->command = syntax->command;
    options->operands = words;
    return QString();
}

/// Why there is no platform; empty when there is one.
QString choosePlatform(bool hasFolders, Options* options)
{
    QString problem;
    const std::optional<PlatformKind> kind = chosenPlatform(PlatformKind::Bus, &problem);
    if (!kind)
        return problem;
    options->platform = hasFolders || kind == PlatformKind::Embedded ? Options::Embedded : Options::Bus;
    if (options->platform == Options::Embedded && options->command == Command::Replay)
        return Texts::tr(
                "A recording is replayed on a bus. \"uiutils-qml --replay\" shows a page over one without it.");
    return QString();
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringList {QStringLiteral("j"), QStringLiteral("json")});
    const QCommandLineOption timeout({QStringLiteral("t"), QStringLiteral("timeout")}, {}, QStringLiteral("MS"),
            QString::number(defaultTimeoutMs));
    const QCommandLineOption services({QStringLiteral("s"), QStringLiteral("services")}, {}, QStringLiteral("FOLDER"));
    const QCommandLineOption root(
            QStringLiteral("root"), {}, QStringLiteral("FOLDER"), defaultRoot(QStringLiteral("kivctl")));
    const RecordingOptions recording;
    parser.addOptions(QList<QCommandLineOption> {json, timeout, services, root} + recording.all());
    const apps::CommandLine line = apps::parse(parser, withNumbersLast(arguments), {helpText(), QString()});
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    QString problem = apps::missingName(parser, recording.named() << services << root);
    if (!problem.isEmpty())
        return misused(problem);

    Options options;
    problem = chooseCommand(parser.positionalArguments(), &options);
    if (problem.isEmpty())
        problem = choosePlatform(parser.isSet(services), &options);
    if (problem.isEmpty())
        problem = recording.read(parser, &options);
    if (!problem.isEmpty())
        return misused(problem);
    bool isNumber = false;
    options.timeoutMs = parser.value(timeout).toInt(&isNumber);
    if (!isNumber || options.timeoutMs <= 0)
        return misused(Texts::tr("--timeout needs a number of milliseconds above 0."));
    options.isJson = parser.isSet(json);
    options.serviceFolders = parser.isSet(services) ? parser.values(services) : defaultServiceFolders();
    options.root = QDir::cleanPath(QDir().absoluteFilePath(parser.value(root)));
    return options;
}

} // namespace uiutils::kivctl
