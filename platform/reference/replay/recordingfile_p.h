#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace kiv::replay {

class Deflation;

/// The file that a recording is written to, plain or compressed by gzip.
///
/// Lines are taken at once and written by a thread of its own, because a disk may take seconds for it while services
/// go on changing. What was taken is in the file within a second, so a killed process loses no more. When a write
/// fails, the file ends with its last complete line (compressed: with the last piece that was written), failed() is
/// emitted, and what comes later is dropped.
class RecordingFile : public QObject
{
    Q_OBJECT

public:
    enum Form { Plain, Compressed };

    /// Makes a file; an existing one is never replaced. The path "-" stands for standard output. Returns null, with the
    /// reason in `problem`, when that fails.
    static std::unique_ptr<RecordingFile> create(const QString& path, Form form, QString* problem);
    /// Closes the file.
    ~RecordingFile() override;

    /// Takes complete lines. Never waits for the disk.
    void append(const QByteArray& lines);

    /// Writes everything and closes. Returns whether all of it is in the file; if not, problem() says why. Later calls
    /// give the same answer.
    bool close();

    /// Why a write failed, in words; empty until one does.
    QString problem() const;
    /// Bytes in the file so far.
    qint64 size() const;

Q_SIGNALS:
    /// A write has failed, in words; emitted once.
    void failed(const QString& reason);

private:
    RecordingFile(int descriptor, const QString& path, Form form);

    void work();
    bool writePiece(const QByteArray& lines, bool isLast);
    bool write(const QByteArray& bytes);
    void cutAfterLine(const QByteArray& bytes, qint64 written);
    bool sync();
    void fail(int error);
    void fail(const QString& reason);

    const QString m_path;
    int m_descriptor;
    const std::unique_ptr<Deflation> m_deflation;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    // Guarded by the mutex.
    QByteArray m_pending;
    QString m_problem;
    qint64 m_size = 0;
    bool m_isEnding = false;

    std::thread m_thread;
};

} // namespace kiv::replay
