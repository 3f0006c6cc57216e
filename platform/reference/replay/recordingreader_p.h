#pragma once

#include "replay/linesource_p.h"
#include "replay/recordingentry_p.h"

#include <QStringList>

namespace kiv::replay {

/// What is wrong with a recording.
struct ReadingTroubles
{
    /// Lines that say nothing that a recording can say, or are too long.
    qint64 broken = 0;
    /// Lines with a time before that of an earlier line, which counts for them too.
    qint64 backwards = 0;
    /// Whether the recording ends in the middle.
    bool isCut = false;
};

/// The entries of a recording in their order. Times never go back.
class RecordingReader
{
public:
    /// Opens a recording and stands before its first entry. Returns false, with the reason in `problem`, when the file
    /// is none.
    bool open(const QString& path, QString* problem);

    /// Begins again; the troubles are counted anew.
    void rewind();

    /// The next entry except headers; nothing at the end. So much in a row that says nothing ends the recording.
    std::optional<Entry> next();

    ReadingTroubles troubles() const;

    /// Looks through the whole file for the services of a recording, in the order in which they come, at most `most`;
    /// the reader then begins again.
    QStringList findServices(int most);

private:
    bool readHeader(QString* problem);
    void count(const QByteArray& line);

    QString m_path;
    LineSource m_lines;
    ReadingTroubles m_troubles;
    /// When a recording begins that was appended.
    qint64 m_begin = 0;
    qint64 m_time = 0;
    qint64 m_brokenBytes = 0;
};

} // namespace kiv::replay
