#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

namespace uiutils::apps {

/// The result of reading a command line; each program derives its own options from it.
struct CommandLine
{
    enum Outcome {
        Run,
        /// `message` is for standard output, and the program ends.
        Answered,
        /// `message` says what is wrong with the command line.
        Misused,
    };

    Outcome outcome = Run;
    QString message;
};

/// How a program describes itself. Null texts stand for the parser's own help, and for the name and version of the
/// program.
struct Answers
{
    QString help;
    QString version;
};

/// Reads the arguments, the program's own name first, with the parser's options, --help and --version.
CommandLine parse(QCommandLineParser& parser, const QStringList& arguments, const Answers& answers = {});

/// The result for a command line with the error `message`.
CommandLine misused(const QString& message);

/// The same as options of the program.
template<typename Options> Options ended(const CommandLine& line)
{
    Options options;
    static_cast<CommandLine&>(options) = line;
    return options;
}

/// Calls `read` with the arguments before a display is opened, so that --help works without one.
template<typename Read> auto readEarly(int argc, char** argv, Read read)
{
    const QCoreApplication application(argc, argv);
    return read(QCoreApplication::arguments());
}

/// Prints the message if the program is not to run, and returns its exit code then.
std::optional<int> exitCodeOf(const CommandLine& line);

} // namespace uiutils::apps
