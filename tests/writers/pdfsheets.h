#pragma once

#include "pdfreading.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <functional>

/// A page of a file as readers see it: words and pixels by position, in points.
struct Sheet
{
    QSizeF size;
    QVector<QPair<QString, QRectF>> words;
    QImage picture;

    QRectF at(const QString& word) const
    {
        const auto is = [&](const QPair<QString, QRectF>& entry) { return entry.first == word; };
        const auto found = std::find_if(words.cbegin(), words.cend(), is);
        return found == words.cend() ? QRectF() : found->second;
    }
    bool has(const QString& word) const { return !at(word).isNull(); }
    /// Where pixels of about that colour are, with at most `within` difference.
    QRectF colored(QColor color, const QRectF& within) const
    {
        QRect found;
        const qreal scale = picture.width() / size.width();
        const QRect part = QRectF(within.topLeft() * scale, within.size() * scale).toRect() & picture.rect();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const QColor c = picture.pixelColor(x, y);
                if (qAbs(c.red() - color.red()) + qAbs(c.green() - color.green()) + qAbs(c.blue() - color.blue()) < 90)
                    found |= QRect(x, y, 1, 1);
            }
        }
        return {QPointF(found.topLeft()) / scale, QSizeF(found.size()) / scale};
    }
};

inline QVector<Sheet> sheetsOf(const QString& path)
{
    QVector<Sheet> sheets;
    QXmlStreamReader xml(outputOf("pdftotext", {"-bbox", path, "-"}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        const auto point = [&](const char* x, const char* y) {
            return QPointF(attributes.value(QLatin1String(x)).toDouble(), attributes.value(QLatin1String(y)).toDouble());
        };
        if (xml.name() == "page")
            sheets += Sheet {{point("width", "height").x(), point("width", "height").y()}, {}, {}};
        else if (xml.name() == "word")
            sheets.last().words += {xml.readElementText(), {point("xMin", "yMin"), point("xMax", "yMax")}};
    }
    return sheets;
}

/// The same with a picture of each page.
inline QVector<Sheet> picturesOf(const QString& path)
{
    const QTemporaryDir folder;
    QVector<Sheet> sheets = sheetsOf(path);
    outputOf("pdftoppm", {"-r", "144", "-png", path, folder.filePath("p")});
    const QStringList names = QDir(folder.path()).entryList({"*.png"}, QDir::Files, QDir::Name);
    for (int page = 0; page < qMin(names.size(), sheets.size()); ++page)
        sheets[page].picture.load(folder.filePath(names.at(page)));
    return sheets;
}

/// A word that leaves the page's margins, or on which another is printed; empty if there is none.
inline QString misplacedIn(const QVector<Sheet>& sheets)
{
    for (const Sheet& sheet : sheets) {
        const QRectF inner = QRectF(QPointF(), sheet.size).adjusted(41, 27, -41, -27);
        for (int i = 0; i < sheet.words.size(); ++i) {
            // Boxes of neighbouring lines may touch.
            const QRectF box = sheet.words.at(i).second;
            const QRectF core = box.adjusted(0.5, box.height() / 4, -0.5, -box.height() / 4);
            if (!inner.contains(box.center()) || box.left() < inner.left() || box.right() > inner.right())
                return sheet.words.at(i).first + " is off the page";
            for (int j = 0; j < i; ++j) {
                if (core.intersects(sheet.words.at(j).second))
                    return sheet.words.at(i).first + " lies over " + sheet.words.at(j).first;
            }
        }
    }
    return {};
}

/// "0 First", "1 Statuses": level and title, with the page to which each leads.
inline QStringList outlineOf(const QString& path)
{
    const QJsonObject json
            = QJsonDocument::fromJson(outputOf("qpdf", {"--json", "--json-key=outlines", path}).toUtf8()).object();
    QStringList lines;
    const std::function<void(const QJsonArray&, int)> visit = [&](const QJsonArray& entries, int level) {
        for (const QJsonValue& value : entries) {
            const QJsonObject entry = value.toObject();
            lines += QStringLiteral("%1 %2 @%3")
                             .arg(level)
                             .arg(entry.value("title").toString())
                             .arg(entry.value("destpageposfrom1").toInt());
            visit(entry.value("kids").toArray(), level + 1);
        }
    };
    visit(json.value("outlines").toArray(), 0);
    return lines;
}
