#include "writers/modern/pagelanguage_p.h"

#include "document/documentreader_p.h"

#include <QLocale>
#include <QRegularExpression>

namespace uiutils {

namespace {

const QLatin1String rightToLeft("rtl");
const QLatin1String leftToRight("ltr");

/// The tag as BCP 47 writes it; empty for a text that is none.
QString usableTag(const QString& given)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z]{2,3}(-[A-Za-z0-9]{1,8}){0,4}\\z"));
    const QString tag = QString(given).replace(QLatin1Char('_'), QLatin1Char('-'));
    return form.match(tag).hasMatch() ? tag : QString();
}

} // namespace

QString PageLanguage::direction() const
{
    return isRightToLeft ? rightToLeft : leftToRight;
}

PageLanguage pageLanguage(const QString& given, const QString& direction, const QString& title)
{
    const QString tag = usableTag(given);
    const QString shown = tag.isEmpty() ? QLocale().bcp47Name() : tag;
    if (direction == rightToLeft || direction == leftToRight)
        return {shown, direction == rightToLeft};
    if (!tag.isEmpty())
        return {shown, QLocale(tag).textDirection() == Qt::RightToLeft};
    return {shown, title.isRightToLeft()};
}

PageLanguage pageLanguage(
        const std::function<QVariant(const QString& name)>& attribute, const NodeReader& report, const QString& title)
{
    const auto textOrOwn = [&](QLatin1String name) {
        const QString given = attribute(name).toString();
        return given.isEmpty() ? report.text(name) : given;
    };
    return pageLanguage(textOrOwn(keys::language), textOrOwn(keys::direction), title);
}

} // namespace uiutils
