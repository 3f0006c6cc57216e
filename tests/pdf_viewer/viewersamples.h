#pragma once

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QString>

/// Makers of small PDF files for the viewer's tests.
namespace samples {

/// A file of letter pages. Page n has a black bar across it, from n tenths of its height to the next tenth.
inline QByteArray barred(int pages)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins({0, 0, 0, 0});
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        const int tenth = writer.height() / 10;
        painter.fillRect(0, (page % 10) * tenth, writer.width(), tenth, Qt::black);
    }
    painter.end();
    return bytes;
}

inline bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Runs a program to its end; false unless it did what it was asked to.
inline bool run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

} // namespace samples
