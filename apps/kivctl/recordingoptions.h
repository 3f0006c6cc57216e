#pragma once

#include <QCommandLineOption>
#include <QList>

class QCommandLineParser;

namespace uiutils::kivctl {

struct Options;

/// The options of "record" and "replay".
class RecordingOptions
{
public:
    QList<QCommandLineOption> all() const { return ofRecord() + ofReplay(); }
    /// Those that need a name.
    QList<QCommandLineOption> named() const { return {m_only, m_attribute}; }

    /// Reads them into `options`, whose command is known. Returns what is wrong, or an empty text.
    QString read(const QCommandLineParser& parser, Options* options) const;

private:
    QList<QCommandLineOption> ofRecord() const { return {m_only, m_duration, m_gzip, m_attribute}; }
    QList<QCommandLineOption> ofReplay() const { return {m_speed, m_from, m_loop, m_paused}; }
    QString strayProblem(const QCommandLineParser& parser, const Options& options) const;

    const QCommandLineOption m_only {QStringLiteral("only"), {}, QStringLiteral("SERVICE")};
    const QCommandLineOption m_duration {QStringLiteral("duration"), {}, QStringLiteral("S")};
    const QCommandLineOption m_gzip {QStringLiteral("gzip")};
    const QCommandLineOption m_attribute {QStringLiteral("attribute"), {}, QStringLiteral("NAME")};
    const QCommandLineOption m_speed {QStringLiteral("speed"), {}, QStringLiteral("FACTOR"), QStringLiteral("1")};
    const QCommandLineOption m_from {QStringLiteral("from"), {}, QStringLiteral("S"), QStringLiteral("0")};
    const QCommandLineOption m_loop {QStringLiteral("loop")};
    const QCommandLineOption m_paused {QStringLiteral("paused")};
};

} // namespace uiutils::kivctl
