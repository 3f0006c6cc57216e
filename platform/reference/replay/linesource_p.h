#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <memory>

namespace kiv::replay {

class Inflation;

/// The lines of a file, plain or compressed by gzip, one after the other. Holds one line and never the file. What a cut
/// or damaged file still has is given as far as it goes.
class LineSource
{
public:
    LineSource();
    ~LineSource();
    Q_DISABLE_COPY_MOVE(LineSource)

    /// Opens the file and stands before its first line. Returns false, with the reason in `problem`, when it is no file
    /// that can be read.
    bool open(const QString& path, QString* problem);

    /// Begins again with the first line.
    bool rewind();

    /// Reads the next line, without its line feed; false at the end. A line beyond `longestLine` is skipped and counted
    /// in tooLong(); so much in a row that it is no recording ends the file.
    bool next(QByteArray* line);

    /// How many lines were too long.
    qint64 tooLong() const { return m_tooLong; }
    /// Whether the file ends in the middle: a line without an end, or a compressed file that is cut or damaged.
    bool isCut() const { return m_isCut; }

private:
    bool fill();
    bool takeUpTo(QByteArray* line, qint64* length);

    QFile m_file;
    std::unique_ptr<Inflation> m_inflation;
    QByteArray m_block;
    int m_at = 0;
    qint64 m_tooLong = 0;
    bool m_isCut = false;
};

} // namespace kiv::replay
