#pragma once

#include "files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

/// What independent readers find in a PDF file.

/// The text in the order in which it was drawn, page by page.
inline QStringList pagesOf(const QString& path)
{
    QStringList pages = outputOf("pdftotext", {"-raw", path, "-"}).split('\f');
    pages.removeLast();
    return pages;
}

inline QString infoOf(const QString& path, const QString& key)
{
    const QRegularExpression line("^" + key + ":\\s+(.*)$", QRegularExpression::MultilineOption);
    return line.match(outputOf("pdfinfo", {path})).captured(1);
}

/// Empty when qpdf finds no error, and Poppler and MuPDF draw each page without a word.
inline QString faultsOf(const QString& path)
{
    const QString check = outputOf("qpdf", {"--check", path});
    QString faults = check.startsWith("status") || check.contains("WARNING") ? check : QString();
    const QTemporaryDir pages;
    faults += outputOf("pdftoppm", {"-r", "9", path, pages.filePath("page")});
    // Debian builds MuPDF without profiles of colours, and it says so of each file that has one.
    return faults + outputOf("mutool", {"draw", "-q", "-r", "9", "-F", "pgm", "-o", "/dev/null", path})
            .remove("warning: ICC support is not available\n");
}

/// The objects of a file, with streams inflated.
class PdfObjects
{
public:
    explicit PdfObjects(const QString& path)
    {
        const QString json = outputOf(
                "qpdf", {"--json=2", "--json-stream-data=inline", "--decode-level=generalized", path});
        m_objects = QJsonDocument::fromJson(json.toUtf8()).object().value("qpdf").toArray().at(1).toObject();
    }

    /// A dictionary, also that of a stream, and also one that is referred to.
    QJsonObject dictionary(const QJsonValue& value) const
    {
        const QJsonObject object = entry(value);
        return object.contains("stream") ? object.value("stream").toObject().value("dict").toObject()
                                         : resolved(value).toObject();
    }
    QByteArray stream(const QJsonValue& reference) const
    {
        return QByteArray::fromBase64(entry(reference).value("stream").toObject().value("data").toString().toLatin1());
    }
    QJsonValue resolved(const QJsonValue& value) const
    {
        return entry(value).isEmpty() ? value : entry(value).value("value");
    }
    QJsonObject trailer() const { return m_objects.value("trailer").toObject().value("value").toObject(); }
    QJsonObject catalog() const { return dictionary(trailer().value("/Root")); }

    /// Each dictionary of the file with its reference.
    QVector<QPair<QString, QJsonObject>> all() const
    {
        QVector<QPair<QString, QJsonObject>> dictionaries;
        for (auto it = m_objects.begin(); it != m_objects.end(); ++it)
            dictionaries += {it.key().mid(4), dictionary(it.key().mid(4))};
        return dictionaries;
    }

private:
    QJsonObject entry(const QJsonValue& reference) const
    {
        return m_objects.value("obj:" + reference.toString()).toObject();
    }

    QJsonObject m_objects;
};

/// The codes of two bytes that a page shows in each of its fonts.
inline QMap<QByteArray, QSet<quint16>> codesOf(const QByteArray& content)
{
    QMap<QByteArray, QSet<quint16>> codes;
    QByteArray font;
    QByteArray word;
    QByteArray shown;
    for (int i = 0; i < content.size(); ++i) {
        if (content.at(i) == '(') {
            while (content.at(++i) != ')') {
                const bool isEscaped = content.at(i) == '\\';
                i += isEscaped;
                shown += isEscaped && content.at(i) == 'r' ? '\r' : content.at(i);
            }
        } else if (!QByteArray(" \n[]<>").contains(content.at(i))) {
            word += content.at(i);
            continue;
        }
        if (word.startsWith("/F"))
            font = word;
        for (int at = 0; word.startsWith('T') && at + 1 < shown.size(); at += 2)
            codes[font] += quint16(uchar(shown.at(at)) << 8 | uchar(shown.at(at + 1)));
        if (!word.isEmpty() && !QByteArray("-.0123456789").contains(word.at(0)))
            shown.clear();
        word.clear();
    }
    return codes;
}
