#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

namespace uiutils::apps {

/// What a program makes of its command line; a program's own options derive from it.
struct CommandLine
{
    enum Outcome {
        Run,
        /// `message` is for standard output, and the program is done.
        Answered,
        /// `message` says what is wrong with the command line.
        Misused,
    };

    Outcome outcome = Run;
    QString message;
};

/// What a program says of itself. Where a text is null, the parser's own help, and the name and version of the program.
struct Answers
{
    QString help;
    QString version;
};

/// Reads the arguments, the program's own name first, with the options that the parser has, --help and --version.
CommandLine parse(QCommandLineParser& parser, const QStringList& arguments, const Answers& answers = {});

/// A line that cannot be understood, for the reason in `message`.
CommandLine misused(const QString& message);

/// The same for a program that does not run, as its own options.
template<typename Options> Options ended(const CommandLine& line)
{
    Options options;
    static_cast<CommandLine&>(options) = line;
    return options;
}

/// What `read` makes of the arguments before a display is opened, so that --help works without one.
template<typename Read> auto readEarly(int argc, char** argv, Read read)
{
    const QCoreApplication application(argc, argv);
    return read(QCoreApplication::arguments());
}

/// Says what there is to say of a line that the program does not run with. Returns its exit code then.
std::optional<int> exitCodeOf(const CommandLine& line);

} // namespace uiutils::apps
