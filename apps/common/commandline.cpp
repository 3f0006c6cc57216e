#include "common/commandline.h"

#include "common/complaint.h"

#include <QCommandLineParser>

#include <cstdio>

namespace uiutils::apps {

namespace {

QString versionText()
{
    return QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
}

} // namespace

CommandLine parse(QCommandLineParser& parser, const QStringList& arguments, const Answers& answers)
{
    // The parser's own help option would add options of Qt.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
            QCoreApplication::translate("CommandLine", "Show this help."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(arguments))
        return misused(parser.errorText());
    if (parser.isSet(help))
        return {CommandLine::Answered, answers.help.isNull() ? parser.helpText() : answers.help};
    if (parser.isSet(version))
        return {CommandLine::Answered, answers.version.isNull() ? versionText() : answers.version};
    return {};
}

CommandLine misused(const QString& message)
{
    return {CommandLine::Misused,
            message + QLatin1Char(' ') + QCoreApplication::translate("CommandLine", "Try --help for the options.")};
}

std::optional<int> exitCodeOf(const CommandLine& line)
{
    if (line.outcome == CommandLine::Misused)
        return complain(line.message, exitMisused);
    if (line.outcome == CommandLine::Run)
        return std::nullopt;
    std::fputs(qUtf8Printable(line.message), stdout);
    return exitDone;
}

} // namespace uiutils::apps
