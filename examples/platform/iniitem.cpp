#include "iniitem.h"

#include <QLocale>
#include <QPointer>

IniItem::IniItem(const QString& id, const IniSection& section, QObject* parent)
    : KIVClientItem(parent)
    , m_id(id)
    , m_type(section.value(QStringLiteral("type"), QStringLiteral("std::string")))
    , m_section(section)
    , m_before(section)
{
}

unsigned IniItem::getType() const
{
    return m_type == QLatin1String("double") ? TypeDouble : m_type == QLatin1String("bool") ? TypeBool : TypeString;
}

/// Invalid for a text that is no value of the item's type.
QVariant IniItem::converted(const QString& text) const
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    switch (getType()) {
    case TypeDouble:
        return isNumber && qIsFinite(number) ? QVariant(number) : QVariant();
    case TypeBool:
        return text == QLatin1String("true") || text == QLatin1String("false") ? QVariant(text.size() == 4)
                                                                               : QVariant();
    default:
        return text;
    }
}

QVariant IniItem::valueOf(const IniSection& section) const
{
    const auto value = section.constFind(QStringLiteral("value"));
    return value == section.constEnd() ? QVariant() : converted(*value);
}

QVariant IniItem::limit(const char* key) const
{
    bool isNumber = false;
    const double number = text(key).toDouble(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

int IniItem::qualityOf(const IniSection& section)
{
    const QString quality = section.value(QStringLiteral("quality"));
    return quality == QLatin1String("passing")    ? QualityPassing
            : quality == QLatin1String("warning") ? QualityWarning
            : quality == QLatin1String("failing") ? QualityFailing
                                                  : QualityNone;
}

QString IniItem::getValueString(bool showUnits) const
{
    const QVariant value = getValue();
    const bool isNumber = value.type() == QVariant::Double;
    const QString shown
            = isNumber ? QLocale().toString(value.toDouble(), 'f', text("precision").toInt()) : value.toString();
    return showUnits && !text("unit").isEmpty() ? shown + QLatin1Char(' ') + text("unit") : shown;
}

QVariant IniItem::getAttribute(const QString& name) const
{
    if (name == QLatin1String("minRange"))
        return getMinRange();
    if (name == QLatin1String("maxRange"))
        return getMaxRange();
    const auto attribute = m_section.constFind(name);
    return attribute == m_section.constEnd() ? QVariant() : *attribute;
}

void IniItem::take(const IniSection& section)
{
    m_before = m_section;
    m_section = section;
}

void IniItem::notify()
{
    const IniSection before = m_before;
    const IniSection now = m_before = m_section;
    const auto differs
            = [&](const char* key) { return before.value(QLatin1String(key)) != now.value(QLatin1String(key)); };
    const QPointer<IniItem> self(this);
    if (differs("unit"))
        Q_EMIT unitsChanged();
    if (self && differs("ready"))
        Q_EMIT isReadyChanged();
    if (self && qualityOf(before) != qualityOf(now))
        Q_EMIT qualityChanged();
    if (self && valueOf(before) != valueOf(now))
        Q_EMIT valueChanged();
}

QString IniItem::accepted(const QVariant& value, QString* problem) const
{
    const QString text = value.toString();
    const QVariant wanted = converted(text);
    const bool isText = getType() == TypeString;
    const double size = isText ? text.size() : wanted.toDouble();
    if (!isReady())
        *problem = tr("%1 cannot be set now.").arg(getName());
    else if (!wanted.isValid() || text.contains(QLatin1Char('\n')))
        *problem = tr("%1 cannot be \"%2\".").arg(getName(), text);
    else if (getMinRange().isValid() && size < getMinRange().toDouble())
        *problem = tr("%1 must be at least %2.").arg(getName(), getMinRange().toString());
    else if (getMaxRange().isValid() && size > getMaxRange().toDouble())
        *problem = tr("%1 must be at most %2.").arg(getName(), getMaxRange().toString());
    else
        // Not null, as an empty text may be.
        return text.isNull() ? QStringLiteral("") : text;
    return {};
}
