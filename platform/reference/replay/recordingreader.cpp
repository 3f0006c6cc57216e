#include "recordingreader_p.h"

#include "replaytexts_p.h"

#include <algorithm>

namespace kiv::replay {

namespace {

/// Bytes of broken lines in a row after which nothing sound is expected.
constexpr qint64 hopelessBytes = 2 * qint64(longestLine);
/// What every entry has, and no less.
constexpr int shortestLine = int(sizeof(R"({"t":0,"service":"a"})"));

} // namespace

bool RecordingReader::open(const QString& path, QString* problem)
{
    m_path = path;
    return m_lines.open(path, problem) && readHeader(problem);
}

bool RecordingReader::readHeader(QString* problem)
{
    QByteArray line;
    const std::optional<Entry> header = m_lines.next(&line) ? readEntry(line) : std::nullopt;
    if (!header || header->kind != Entry::Header) {
        *problem = ReplayTexts::tr("%1 is not a recording of services.").arg(m_path);
        return false;
    }
    if (isKnownVersion(*header))
        return true;
    *problem = ReplayTexts::tr("%1 was recorded by a newer program, which writes another form. Use that one.")
                       .arg(m_path);
    return false;
}

void RecordingReader::rewind()
{
    QString problem;
    QByteArray header;
    m_troubles = ReadingTroubles();
    m_begin = 0;
    m_time = 0;
    m_brokenBytes = 0;
    if (m_lines.rewind())
        m_lines.next(&header);
}

void RecordingReader::count(const QByteArray& line)
{
    // The last line of a recording that was cut is no line.
    if (m_lines.isCut())
        return;
    ++m_troubles.broken;
    // An empty line takes time as well.
    m_brokenBytes += line.size() + 100;
}

std::optional<Entry> RecordingReader::next()
{
    QByteArray line;
    while (m_brokenBytes < hopelessBytes && m_lines.next(&line)) {
        std::optional<Entry> entry = readEntry(line);
        if (!entry) {
            count(line);
            continue;
        }
        m_brokenBytes = 0;
        if (entry->kind == Entry::Header) {
            m_begin = m_time;
            continue;
        }
        entry->time += m_begin;
        m_troubles.backwards += entry->time < m_time ? 1 : 0;
        m_time = std::max(m_time, entry->time);
        entry->time = m_time;
        return entry;
    }
    return std::nullopt;
}

ReadingTroubles RecordingReader::troubles() const
{
    ReadingTroubles troubles = m_troubles;
    troubles.broken += m_lines.tooLong();
    troubles.isCut = m_lines.isCut() || m_brokenBytes >= hopelessBytes;
    return troubles;
}

QStringList RecordingReader::findServices(int most)
{
    rewind();
    QStringList services;
    QByteArray line;
    while (services.size() < most && m_brokenBytes < hopelessBytes && m_lines.next(&line)) {
        // Lines that begin a service are few; reading all the others would take as long as playing them.
        if (!line.startsWith('{') || line.size() < shortestLine) {
            count(line);
            continue;
        }
        m_brokenBytes = 0;
        if (!line.contains("\"snapshot\""))
            continue;
        const std::optional<Entry> entry = readEntry(line);
        if (entry && entry->kind == Entry::Snapshot && !services.contains(entry->service))
            services += entry->service;
    }
    rewind();
    return services;
}

} // namespace kiv::replay
