#include "golden.h"

#include "audit/scene.h"
#include "texts.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QVector>

#include <algorithm>
#include <cstdlib>

namespace uiutils::qmltool {

namespace {

/// More lines are compared one by one; no page has them.
constexpr int mostComparedLines = 2000;
/// Of 255, by which a colour may differ; and how many of a million pixels may differ by more.
constexpr int colourTolerance = 24;
constexpr qint64 pixelTolerance = 1000;

QString wordOf(const QQuickItem* item)
{
    return item->objectName().isEmpty() ? audit::typeOf(item) : item->objectName();
}

QString pathOf(const QQuickItem* item)
{
    QStringList words(wordOf(item));
    for (const QQuickItem* parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (audit::isOwnType(parent) || !parent->objectName().isEmpty())
            words.prepend(wordOf(parent));
    }
    return words.join(QLatin1Char('/'));
}

QString textOf(const QQuickItem* item)
{
    const QVariant displayed = item->property("displayText");
    QString text = (displayed.isValid() ? displayed : item->property("text")).toString();
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    for (const QChar end : {QChar(QLatin1Char('\n')), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, QLatin1String("\\n"));
    return text.remove(QLatin1Char('\r'));
}

/// For every pair of ends of the two lists, how many lines they have in common.
QVector<QVector<int>> commonLines(const QStringList& a, const QStringList& b)
{
    QVector<QVector<int>> common(a.size() + 1, QVector<int>(b.size() + 1));
    for (int i = a.size() - 1; i >= 0; --i) {
        for (int j = b.size() - 1; j >= 0; --j)
            common[i][j] = a.at(i) == b.at(j) ? common.at(i + 1).at(j + 1) + 1
                                              : std::max(common.at(i + 1).at(j), common.at(i).at(j + 1));
    }
    return common;
}

bool isSameColour(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) <= colourTolerance && std::abs(qGreen(a) - qGreen(b)) <= colourTolerance
            && std::abs(qBlue(a) - qBlue(b)) <= colourTolerance && std::abs(qAlpha(a) - qAlpha(b)) <= colourTolerance;
}

} // namespace

QStringList shownTexts(const QQuickWindow* window)
{
    QStringList lines;
    const audit::Scene scene = audit::readScene(window);
    for (const audit::Shown& shown : scene.texts) {
        if (!shown.seen.isEmpty())
            lines += pathOf(shown.item) + QLatin1String(": ") + textOf(shown.item);
    }
    return lines;
}

QStringList lineDifferences(const QStringList& expected, const QStringList& actual)
{
    const QStringList a = expected.mid(0, mostComparedLines);
    const QStringList b = actual.mid(0, mostComparedLines);
    const QVector<QVector<int>> common = commonLines(a, b);
    QStringList lines;
    int i = 0;
    int j = 0;
    while (i < a.size() || j < b.size()) {
        if (i < a.size() && j < b.size() && a.at(i) == b.at(j)) {
            ++i;
            ++j;
        } else if (j == b.size() || (i < a.size() && common.at(i + 1).at(j) >= common.at(i).at(j + 1))) {
            lines += QLatin1String("- ") + a.at(i++);
        } else {
            lines += QLatin1String("+ ") + b.at(j++);
        }
    }
    return lines;
}

QString pictureDifference(const QImage& expected, const QImage& actual)
{
    if (expected.size() != actual.size())
        return Texts::tr("%1 x %2 pixels instead of %3 x %4")
                .arg(actual.width())
                .arg(actual.height())
                .arg(expected.width())
                .arg(expected.height());
    qint64 different = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x)
            different += isSameColour(expected.pixel(x, y), actual.pixel(x, y)) ? 0 : 1;
    }
    const qint64 all = qint64(actual.width()) * actual.height();
    return different * 1000000 <= all * pixelTolerance ? QString()
                                                       : Texts::tr("%1 of %2 pixels differ").arg(different).arg(all);
}

} // namespace uiutils::qmltool
