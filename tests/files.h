#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QVector>

/// The bytes of a file; empty when it is not a file or cannot be read.
inline QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file, creates its folders, and returns its path. Ends the program on failure.
inline QString writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()
            || !file.flush())
        qFatal("%s cannot be written", qPrintable(path));
    return path;
}

/// The entries of a folder, hidden ones included.
inline QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// The output of a program on both channels; starts with "status" if it failed.
inline QString outputOf(const QString& program, const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000))
        return QString("status: %1").arg(process.errorString());
    const QString output = QString::fromUtf8(process.readAll());
    return process.exitCode() == 0 ? output : QString("status %1\n%2").arg(process.exitCode()).arg(output);
}

/// The rows of a table below tests/data, with cells separated by " | "; a line that begins with "#" is a comment.
inline QVector<QStringList> tableIn(const QString& name)
{
    QVector<QStringList> rows;
    const QStringList lines = QString::fromUtf8(contentsOf(UIUTILS_TEST_DATA_DIR + name)).split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (!line.startsWith('#'))
            rows += line.split(" | ");
    }
    return rows;
}

/// How a program ended, and its output.
struct Outcome
{
    /// -1 after a crash or a hang.
    int exitCode = -1;
    QByteArray output;
    QString errors;
};

/// Waits for the end of a running program, and starts one.
inline Outcome ended(QProcess& process)
{
    const bool isDone = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
    process.kill();
    process.waitForFinished();
    return {isDone ? process.exitCode() : -1, process.readAllStandardOutput(), QString::fromUtf8(process.readAllStandardError())};
}
