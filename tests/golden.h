#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QString>
#include <QtTest>

/// Compares `actual` with the golden file and says where they part. Under UIUTILS_UPDATE_GOLDEN=1 it writes the file
/// instead: look at the difference before committing it.
inline QString goldenDifference(const QString& path, const QByteArray& actual)
{
    QFile file(path);
    if (qEnvironmentVariableIntValue("UIUTILS_UPDATE_GOLDEN") == 1) {
        const bool written = file.open(QIODevice::WriteOnly) && file.write(actual) == actual.size();
        return written ? QString() : path + ": cannot be written";
    }
    if (!file.open(QIODevice::ReadOnly))
        return path + ": cannot be read";
    const QByteArray golden = file.readAll();
    if (golden == actual)
        return QString();

    const QList<QByteArray> expected = golden.split('\n');
    const QList<QByteArray> lines = actual.split('\n');
    int line = 0;
    while (line < lines.size() && line < expected.size() && lines.at(line) == expected.at(line))
        ++line;
    return QString("%1:%2:\n  expected: %3\n  actual:   %4")
            .arg(path, QString::number(line + 1), QString::fromUtf8(expected.value(line)),
                    QString::fromUtf8(lines.value(line)));
}
