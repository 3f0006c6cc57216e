#pragma once

#include "files.h"

#include "document/reporttemplate.h"

#include <QtTest>

/// Compares `actual` with the golden file and shows the first difference. Under UIUTILS_UPDATE_GOLDEN=1 it writes the
/// file instead: look at the difference before you commit it.
inline QString goldenDifference(const QString& path, const QByteArray& actual)
{
    if (qEnvironmentVariableIntValue("UIUTILS_UPDATE_GOLDEN") == 1) {
        writeFile(path, actual);
        return QString();
    }
    const QByteArrayList expected = contentsOf(path).split('\n');
    const QByteArrayList lines = actual.split('\n');
    if (expected == lines)
        return QString();
    int line = 0;
    while (line < lines.size() && line < expected.size() && lines.at(line) == expected.at(line))
        ++line;
    return QString("%1:%2:\n  expected: %3\n  actual:   %4")
            .arg(path, QString::number(line + 1), expected.value(line), lines.value(line));
}

/// One of the documents for which every writer has golden files.
inline void readDocument(ReportTemplate& report, const QString& name)
{
    report.readFile(UIUTILS_TEST_DATA_DIR "/documents/" + name + ".json");
    QVERIFY2(!report.hasError(), qPrintable(report.errorString()));
}
