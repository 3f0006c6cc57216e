#include "recordingoptions.h"

#include "common/playtimes.h"
#include "options.h"
#include "texts.h"

#include <QCommandLineParser>

#include <climits>

namespace uiutils::kivctl {

namespace {

QString strayOption(const QCommandLineParser& parser, const QList<QCommandLineOption>& options, const char* command)
{
    for (const QCommandLineOption& option : options) {
        if (parser.isSet(option))
            return Texts::tr("--%1 is an option of \"%2\".").arg(option.names().constFirst(), QLatin1String(command));
    }
    return QString();
}

} // namespace

/// An option that means nothing to the command.
QString RecordingOptions::strayProblem(const QCommandLineParser& parser, const Options& options) const
{
    QString stray;
    if (options.command != Command::Record)
        stray = strayOption(parser, ofRecord(), "record");
    if (stray.isEmpty() && options.command != Command::Replay)
        stray = strayOption(parser, ofReplay(), "replay");
    return stray;
}

QString RecordingOptions::read(const QCommandLineParser& parser, Options* options) const
{
    const QString stray = strayProblem(parser, *options);
    if (!stray.isEmpty())
        return stray;
    options->only = parser.values(m_only);
    options->attributes = parser.values(m_attribute);
    options->isCompressed = parser.isSet(m_gzip);
    options->isLooped = parser.isSet(m_loop);
    options->isPaused = parser.isSet(m_paused);
    const apps::PlayTimes times = apps::playTimes(parser.value(m_from), parser.value(m_speed));
    const qint64 duration = apps::millisecondsOf(parser.value(m_duration)).value_or(0);
    if (!times.problem.isEmpty())
        return times.problem;
    if (parser.isSet(m_duration) && (duration == 0 || duration > INT_MAX))
        return Texts::tr("--duration needs a number of seconds above 0, at most %1.").arg(INT_MAX / 1000);
    options->fromMs = times.fromMs;
    options->speed = times.speed;
    options->durationMs = int(duration);
    return QString();
}

} // namespace uiutils::kivctl
