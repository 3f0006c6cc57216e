#include "writers/plots/plottext_p.h"

#include <QTextBoundaryFinder>

namespace uiutils {

namespace {

/// How many characters of the text fit: up to the end of a word, or of a character if even one word is too wide.
int fittingLength(const QString& text, const QFontMetricsF& metrics, double width)
{
    const auto fits = [&](int length) { return metrics.horizontalAdvance(text.left(length).trimmed()) <= width; };
    for (const auto type : {QTextBoundaryFinder::Line, QTextBoundaryFinder::Grapheme}) {
        QTextBoundaryFinder finder(type, text);
        int fitting = 0;
        int next = finder.toNextBoundary();
        while (next > 0 && fits(next)) {
            fitting = next;
            next = finder.toNextBoundary();
        }
        if (fitting > 0)
            return fitting;
    }
    return 1;
}

} // namespace

QStringList wrappedLines(const QString& text, const QFontMetricsF& metrics, double width, int most)
{
    QStringList lines;
    QString rest = text;
    while (lines.size() + 1 < most && metrics.horizontalAdvance(rest) > width) {
        const int length = fittingLength(rest, metrics, width);
        lines += rest.left(length).trimmed();
        rest = rest.mid(length).trimmed();
    }
    return lines << metrics.elidedText(rest, Qt::ElideRight, width);
}

} // namespace uiutils
