#include "writers/pdffile/pdfdate_p.h"

#include <QRegularExpression>

namespace uiutils::pdf {

QDateTime dateTime(const QString& text)
{
    static const QRegularExpression expression(
            QStringLiteral("^\\s*(?:D:)?(\\d{4})(?:(\\d\\d)(?:(\\d\\d)(?:(\\d\\d)(?:(\\d\\d)(\\d\\d)?)?)?)?)?"
                           "(?:(Z)(?:00'?(?:00'?)?)?|([+-])(\\d\\d)(?:'?(\\d\\d)?'?)?)?\\s*\\z"));
    const QRegularExpressionMatch match = expression.match(text);
    if (!match.hasMatch())
        return QDateTime();
    const auto number = [&match](int group, int missing) {
        return match.capturedLength(group) > 0 ? match.capturedRef(group).toInt() : missing;
    };
    const QDate date(number(1, 0), number(2, 1), number(3, 1));
    const QTime time(number(4, 0), number(5, 0), number(6, 0));
    if (!date.isValid() || !time.isValid() || number(9, 0) > 23 || number(10, 0) > 59)
        return QDateTime();
    if (match.capturedLength(7) > 0)
        return QDateTime(date, time, Qt::UTC);
    if (match.capturedLength(8) == 0)
        return QDateTime(date, time, Qt::LocalTime);
    const int offset = (number(9, 0) * 60 + number(10, 0)) * 60;
    return QDateTime(date, time, Qt::OffsetFromUTC, match.capturedRef(8) == QLatin1String("-") ? -offset : offset);
}

} // namespace uiutils::pdf
