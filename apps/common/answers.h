#pragma once

#include <QCoreApplication>
#include <QLatin1Char>
#include <QString>

/// What a program makes of a command line that it does not run with. `Options` has the members `outcome`, which can be
/// `Answered` and `Misused`, and `message`.
namespace uiutils::apps {

/// The line asked for a text, such as the help.
template<typename Options> Options answered(const QString& message)
{
    Options options;
    options.outcome = Options::Answered;
    options.message = message;
    return options;
}

/// The line cannot be understood, for the reason in `message`.
template<typename Options> Options misused(const QString& message)
{
    Options options;
    options.outcome = Options::Misused;
    options.message
            = message + QLatin1Char('\n') + QCoreApplication::translate("Options", "Try --help for the options.");
    return options;
}

} // namespace uiutils::apps
