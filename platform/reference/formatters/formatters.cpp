#include "formatters/formatters_p.h"

#include "base/servicetext_p.h"

#include <kiv/baseformatter.h>

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kiv::formatters {

namespace {

/// Handles what all number formatters share: values that are not numbers, and the unit after a blank.
class NumberFormatter : public BaseFormatter
{
public:
    explicit NumberFormatter(QString unit)
        : m_unit(std::move(unit))
    {
    }

    QString format(const QVariant& value) const final
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber)
            return value.toString();
        if (!std::isfinite(number))
            return QLocale().toString(number);
        const QString text = numberText(number);
        const QString unit = unitOf(number);
        return getShowUnits() && !unit.isEmpty() ? text + QLatin1Char(' ') + unit : text;
    }

    QString getUnitString() const final
    {
        const double number = getValue().toDouble();
        return unitOf(std::isfinite(number) ? number : 0);
    }

protected:
    virtual QString numberText(double number) const = 0;
    virtual QString unitOf(double) const { return uiutils::translatedServiceText(m_unit); }

    /// As the service gives it.
    QString unit() const { return m_unit; }
    int precisionOr(int fallback) const { return getPrecision() < 0 ? fallback : std::min(getPrecision(), 15); }

private:
    QString m_unit;
};

class DecimalFormatter final : public NumberFormatter
{
public:
    /// Negative: as many decimals as the number needs.
    DecimalFormatter(const QString& unit, int decimals)
        : NumberFormatter(unit)
        , m_decimals(decimals)
    {
    }

protected:
    QString numberText(double number) const override
    {
        const int decimals = precisionOr(m_decimals);
        const QLocale locale;
        return decimals < 0 ? locale.toString(number, 'f', QLocale::FloatingPointShortest)
                            : locale.toString(number, 'f', decimals);
    }

private:
    int m_decimals;
};

class ScientificFormatter final : public NumberFormatter
{
public:
    using NumberFormatter::NumberFormatter;

protected:
    QString numberText(double number) const override { return QLocale().toString(number, 'e', precisionOr(6)); }
};

/// Scales a number with the prefix that makes it at least 1 and less than 1,000.
class SiFormatter final : public NumberFormatter
{
public:
    using NumberFormatter::NumberFormatter;

protected:
    QString numberText(double number) const override
    {
        return QLocale().toString(number / std::pow(1000, thousands(number)), 'f', precisionOr(3));
    }

    QString unitOf(double number) const override
    {
        static const QString prefixes[] = {QStringLiteral("f"), QStringLiteral("p"), QStringLiteral("n"),
                QString(QChar(0xb5)), QStringLiteral("m"), QString(), QStringLiteral("k"), QStringLiteral("M"),
                QStringLiteral("G"), QStringLiteral("T"), QStringLiteral("P"), QStringLiteral("E")};
        const QString prefix = prefixes[thousands(number) - smallest];
        // A language may have a word of its own for "km", or only for "m".
        const QString scaled = prefix + unit();
        const QString translated = uiutils::translatedServiceText(scaled);
        return translated == scaled ? prefix + uiutils::translatedServiceText(unit()) : translated;
    }

private:
    static constexpr int smallest = -5;
    static constexpr int largest = 6;

    int thousands(double number) const
    {
        if (number == 0)
            return 0;
        // A number that rounds up to 1,000 is shown as 1 of the next prefix.
        const double rounding = 0.5 * std::pow(10, -precisionOr(3));
        int power = qBound(smallest, int(std::floor(std::log10(std::abs(number)) / 3)), largest);
        if (power < largest && std::abs(number) / std::pow(1000, power) >= 1000 - rounding)
            ++power;
        return power;
    }
};

/// Seconds as hours, minutes and seconds: "0:00:07", "123:45:06.250".
class DurationFormatter final : public NumberFormatter
{
public:
    DurationFormatter()
        : NumberFormatter(QString())
    {
    }

protected:
    QString numberText(double seconds) const override
    {
        const bool isWhole = seconds == std::floor(seconds);
        const int decimals = std::min(precisionOr(isWhole ? 0 : 3), 9);
        const double scale = std::pow(10, decimals);
        const double ticks = std::round(std::abs(seconds) * scale);
        if (ticks > 9e15)
            return QLocale().toString(seconds, 'g', 6);
        const qint64 whole = qint64(ticks / scale);
        const qint64 fraction = qint64(ticks) - whole * qint64(scale);
        const QLatin1Char zero('0');
        QString text = QStringLiteral("%1:%2:%3")
                               .arg(whole / 3600)
                               .arg(whole / 60 % 60, 2, 10, zero)
                               .arg(whole % 60, 2, 10, zero);
        if (decimals > 0)
            text += QLocale().decimalPoint() + QStringLiteral("%1").arg(fraction, decimals, 10, zero);
        return seconds < 0 && ticks > 0 ? QLocale().negativeSign() + text : text;
    }
};

} // namespace

BaseFormatter* create(const QString& name)
{
    const QString kind = name.section(QLatin1Char(':'), 0, 0);
    const QString unit = name.section(QLatin1Char(':'), 1);
    if (kind == QLatin1String("decimal"))
        return new DecimalFormatter(unit, -1);
    if (kind == QLatin1String("scientific"))
        return new ScientificFormatter(unit);
    if (kind == QLatin1String("si"))
        return new SiFormatter(unit);
    if (name == QLatin1String("dB") || name == QLatin1String("dBm"))
        return new DecimalFormatter(name, 2);
    if (name == QLatin1String("percent"))
        return new DecimalFormatter(QStringLiteral("%"), 2);
    if (name == QLatin1String("duration"))
        return new DurationFormatter;
    if (name == QLatin1String("frequency"))
        return new SiFormatter(QStringLiteral("Hz"));
    if (name == QLatin1String("distance"))
        return new SiFormatter(QStringLiteral("m"));
    if (name == QLatin1String("bitrate"))
        return new SiFormatter(QStringLiteral("bit/s"));
    return nullptr;
}

QStringList names()
{
    return {QStringLiteral("decimal"), QStringLiteral("scientific"), QStringLiteral("si"), QStringLiteral("dB"),
            QStringLiteral("dBm"), QStringLiteral("percent"), QStringLiteral("duration"), QStringLiteral("frequency"),
            QStringLiteral("distance"), QStringLiteral("bitrate")};
}

} // namespace kiv::formatters
