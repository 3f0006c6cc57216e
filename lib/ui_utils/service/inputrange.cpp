#include "service/inputrange_p.h"

#include "service/kivdata.h"
#include "service/valuetext_p.h"

#include <kiv/baseformatter.h>

#include <QCoreApplication>
#include <QLocale>

namespace uiutils {

namespace {

constexpr unsigned inputDnsName = 20;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(KivData)
};

/// The words of one kind of length.
struct LengthTexts
{
    const char* atMost;
    const char* exactly;
    const char* between;
};

const LengthTexts charTexts {QT_TRANSLATE_NOOP("KivData", "%1 max chars"), QT_TRANSLATE_NOOP("KivData", "%1 chars"),
        QT_TRANSLATE_NOOP("KivData", "%1 - %2 chars")};
const LengthTexts digitTexts {QT_TRANSLATE_NOOP("KivData", "%1 max digits"), QT_TRANSLATE_NOOP("KivData", "%1 digits"),
        QT_TRANSLATE_NOOP("KivData", "%1 - %2 digits")};

/// Never with an exponent: no user would type one.
QString limitText(const QVariant& limit)
{
    if (limit.type() == QVariant::Double)
        return QString::number(limit.toDouble(), 'f', QLocale::FloatingPointShortest);
    return limit.toString();
}

class Describer
{
public:
    explicit Describer(const InputRange& range)
        : m_range(range)
        , m_minimum(limitText(range.minimum))
        , m_maximum(limitText(range.maximum))
        , m_units(range.formatter ? range.formatter->getUnitString() : QString())
    {
    }

    QString length(const LengthTexts& texts) const
    {
        if (isOpen())
            return QString();
        if (m_minimum == QLatin1String("0"))
            return Texts::tr(texts.atMost).arg(m_maximum);
        if (m_minimum == m_maximum)
            return Texts::tr(texts.exactly).arg(m_minimum);
        return Texts::tr(texts.between).arg(m_minimum, m_maximum);
    }

    QString integer() const
    {
        if (isOpen())
            return QString();
        if (m_minimum == m_maximum)
            return Texts::tr("%1 only").arg(m_minimum);
        return withUnits(m_minimum, m_maximum);
    }

    QString real() const
    {
        if (isOpen())
            return QString();
        if (const BaseFormatter* formatter = m_range.formatter)
            return QStringLiteral("%1 - %2").arg(
                    formatter->format(m_range.minimum), formatter->format(m_range.maximum));
        return withUnits(realText(m_range.minimum), realText(m_range.maximum));
    }

    QString general() const
    {
        if (m_units.isEmpty() && m_range.type == QLatin1String("std::string"))
            return Texts::tr(charTexts.between).arg(m_minimum, m_maximum);
        return withUnits(m_minimum, m_maximum);
    }

private:
    bool isOpen() const { return m_minimum.isEmpty() || m_maximum.isEmpty(); }

    QString withUnits(const QString& minimum, const QString& maximum) const
    {
        return QStringLiteral("%1 - %2 %3").arg(minimum, maximum, m_units);
    }

    QString realText(const QVariant& limit) const
    {
        bool isNumber = false;
        const double number = limit.toDouble(&isNumber);
        return isNumber ? fixedPointText(number, m_range.precision) : limit.toString();
    }

    const InputRange& m_range;
    QString m_minimum;
    QString m_maximum;
    QString m_units;
};

} // namespace

QString rangeDescription(const InputRange& range)
{
    switch (range.inputType) {
    case KivData::INPUT_IP:
        return Texts::tr("Please enter IP address");
    case KivData::INPUT_IPV4:
        return QStringLiteral("0.0.0.0 - 255.255.255.255");
    case KivData::INPUT_IPV6:
        return Texts::tr("Please enter IPv6 address");
    case KivData::INPUT_MAC:
        return QStringLiteral("00:00:00:00:00:00 - FF:FF:FF:FF:FF:FF");
    case KivData::INPUT_ALPHANUMERIC:
    case KivData::INPUT_PASSWORD:
        return Describer(range).length(charTexts);
    case KivData::INPUT_INT:
    case KivData::INPUT_POSITIVE_INT:
        return Describer(range).integer();
    case KivData::INPUT_FLOAT:
    case KivData::INPUT_POSITIVE_FLOAT:
        return Describer(range).real();
    case KivData::INPUT_URL:
        return Texts::tr("Please enter URL");
    case KivData::INPUT_DIGITS:
    case KivData::INPUT_PHONE_NUMBER:
        return Describer(range).length(digitTexts);
    case inputDnsName:
        return Texts::tr("Please enter DNS name");
    default:
        return Describer(range).general();
    }
}

QString lengthExpression(const QVariant& minimum, const QVariant& maximum)
{
    bool hasMinimum = false;
    bool hasMaximum = false;
    const int least = minimum.toInt(&hasMinimum);
    const int most = maximum.toInt(&hasMaximum);
    if (!hasMinimum || !hasMaximum)
        return QStringLiteral(".*");
    return QStringLiteral(".{%1,%2}").arg(least).arg(most);
}

} // namespace uiutils
