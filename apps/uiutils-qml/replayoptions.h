#pragma once

#include <QCommandLineOption>
#include <QList>

class QCommandLineParser;

namespace uiutils::qmltool {

struct Options;

/// The options about a recording in place of services, and about tests of pages over it.
class ReplayOptions
{
public:
    ReplayOptions();

    QList<QCommandLineOption> all() const;
    /// Those that need a name.
    QList<QCommandLineOption> named() const { return {m_replay, m_expect}; }

    /// Reads them into `options`. Returns what is wrong, or an empty text.
    QString read(const QCommandLineParser& parser, bool areServicesGiven, Options* options) const;

private:
    QString strayOption(const QCommandLineParser& parser) const;

    const QCommandLineOption m_replay;
    const QCommandLineOption m_from;
    const QCommandLineOption m_speed;
    const QCommandLineOption m_loop;
    const QCommandLineOption m_at;
    const QCommandLineOption m_expect;
    const QCommandLineOption m_update;
    const QCommandLineOption m_pictures;
};

} // namespace uiutils::qmltool
