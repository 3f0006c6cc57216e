#include "replayoptions.h"

#include "common/playtimes.h"
#include "options.h"
#include "texts.h"

#include <QCommandLineParser>

#include <algorithm>

namespace uiutils::qmltool {

namespace {

bool readMoments(const QString& text, QVector<qint64>* moments)
{
    const QStringList words = text.split(QLatin1Char(','));
    for (const QString& word : words) {
        const std::optional<qint64> moment = apps::millisecondsOf(word);
        if (!moment)
            return false;
        *moments += *moment;
    }
    return std::is_sorted(moments->cbegin(), moments->cend());
}

} // namespace

ReplayOptions::ReplayOptions()
    : m_replay(QStringLiteral("replay"),
            Texts::tr("Show the services of a recording that \"kivctl record\" has made, as they change in it, in "
                      "place of described ones."),
            Texts::tr("file"))
    , m_from(QStringLiteral("from"), Texts::tr("Replay from that second on (default: 0)."), Texts::tr("seconds"),
              QStringLiteral("0"))
    , m_speed(QStringLiteral("speed"), Texts::tr("Replay so many times faster (default: 1)."), Texts::tr("factor"),
              QStringLiteral("1"))
    , m_loop(QStringLiteral("loop"), Texts::tr("Begin the replay again at its end."))
    , m_at(QStringLiteral("grab-at"),
              Texts::tr("Compare what the page shows at these seconds of the replay, such as 1,2.5, with the files in "
                        "the folder of --expect, and quit. The time of the page is that of the recording. Exit status "
                        "1 if anything differs."),
              Texts::tr("times"))
    , m_expect(
              QStringLiteral("expect"), Texts::tr("The folder with what is expected of the page."), Texts::tr("folder"))
    , m_update(QStringLiteral("update"), Texts::tr("Write what the page shows to the folder instead of comparing."))
    , m_pictures(QStringLiteral("pictures"), Texts::tr("Compare pictures besides the texts of the page."))
{
}

QList<QCommandLineOption> ReplayOptions::all() const
{
    return {m_replay, m_from, m_speed, m_loop, m_at, m_expect, m_update, m_pictures};
}

/// An option that means nothing without another one.
QString ReplayOptions::strayOption(const QCommandLineParser& parser) const
{
    const auto stray = [&parser](const QList<QCommandLineOption>& options, const QCommandLineOption& needed) {
        for (const QCommandLineOption& option : options) {
            if (parser.isSet(option) && !parser.isSet(needed))
                return Texts::tr("--%1 needs --%2.").arg(option.names().constFirst(), needed.names().constFirst());
        }
        return QString();
    };
    const QString withoutReplay = stray({m_from, m_speed, m_loop, m_at}, m_replay);
    if (!withoutReplay.isEmpty())
        return withoutReplay;
    const QString withoutMoments = stray({m_expect, m_update, m_pictures}, m_at);
    return withoutMoments.isEmpty() ? stray({m_at}, m_expect) : withoutMoments;
}

QString ReplayOptions::read(const QCommandLineParser& parser, bool areServicesGiven, Options* options) const
{
    const QString stray = strayOption(parser);
    if (!stray.isEmpty())
        return stray;
    if (areServicesGiven && parser.isSet(m_replay))
        return Texts::tr("Services come from files or from a recording, not from both.");
    options->recording = parser.value(m_replay);
    options->expectations = parser.value(m_expect);
    options->isLooped = parser.isSet(m_loop);
    options->isUpdate = parser.isSet(m_update);
    options->hasPictures = parser.isSet(m_pictures);
    const apps::PlayTimes times = apps::playTimes(parser.value(m_from), parser.value(m_speed));
    if (!times.problem.isEmpty())
        return times.problem;
    options->fromMs = times.fromMs;
    options->speed = times.speed;
    if (parser.isSet(m_at) && !readMoments(parser.value(m_at), &options->moments))
        return Texts::tr("--grab-at needs numbers of seconds in ascending order, separated by commas.");
    if (!options->moments.isEmpty() && options->moments.constFirst() < options->fromMs)
        return Texts::tr("--grab-at needs moments that --from does not leave out.");
    const bool isOther = options->isAudit || options->isCheck || !options->picture.isEmpty();
    if (!options->moments.isEmpty() && (isOther || options->page.isEmpty()))
        return Texts::tr("--grab-at needs a page, and neither --grab nor --audit nor --check.");
    return QString();
}

} // namespace uiutils::qmltool
