// The part of UiData that takes, holds and shows values and their elements.

#include "local/uidata.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "service/valuetext_p.h"

#include <kiv/baseformatter.h>

#include <QColor>
#include <QDateTime>
#include <QPointF>
#include <QRectF>
#include <QVector3D>
#include <QVector4D>

#include <utility>

using uiutils::isWithin;

namespace {

constexpr int longestVectorText = 1024 * 1024;

QString joined(const QVector<double>& numbers, int digits = 15)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', digits));
    return texts.join(QLatin1Char(','));
}

/// A literal such as "1,2" or "10:20" in a QML file arrives as a point or a time where any value is taken. A form wants
/// what was written.
QVariant asWritten(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QPointF: {
        const QPointF point = value.toPointF();
        return joined({point.x(), point.y()});
    }
    case QMetaType::QSizeF: {
        const QSizeF size = value.toSizeF();
        return QString::number(size.width(), 'g', 15) + QLatin1Char('x') + QString::number(size.height(), 'g', 15);
    }
    case QMetaType::QRectF: {
        const QRectF rect = value.toRectF();
        return joined({rect.x(), rect.y(), rect.width()}) + QLatin1Char('x') + QString::number(rect.height(), 'g', 15);
    }
    case QMetaType::QVector3D: {
        const QVector3D vector = value.value<QVector3D>();
        return joined({vector.x(), vector.y(), vector.z()}, 6);
    }
    case QMetaType::QVector4D: {
        const QVector4D vector = value.value<QVector4D>();
        return joined({vector.x(), vector.y(), vector.z(), vector.w()}, 6);
    }
    case QMetaType::QTime:
        return value.toTime().toString(
                value.toTime().second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    case QMetaType::QColor:
        return value.value<QColor>().name();
    default:
        return value;
    }
}

/// The comma-joined text that stands for a vector, whatever QML gave.
QString vectorText(const QVariant& value)
{
    if (value.type() != QVariant::List && value.type() != QVariant::StringList)
        return value.toString();
    return value.toStringList().join(QLatin1Char(','));
}

} // namespace

bool UiData::isVector() const
{
    const QString type = getType();
    return type == TYPE_VEC_INT || type == TYPE_VEC_DOUBLE || type == TYPE_VEC_STRING;
}

void UiData::setValue(QVariant value)
{
    value = asWritten(uiutils::plainValue(value));
    if (!isVector()) {
        if (!mayWrite(!uiutils::isSameValue(value, getValue())))
            return;
        holdValue(value);
        announce({&UiData::valueChanged});
        return;
    }
    const QString text = vectorText(value).left(longestVectorText);
    // An empty text is one empty element, an empty list none.
    const bool isNone
            = text.isEmpty() && value.isValid() && value.type() != QVariant::String && value.toList().isEmpty();
    if (!mayWrite(text != getValue() || isNone != m_elements.isEmpty()))
        return;
    holdValue(text);
    if (isNone)
        m_elements.clear();
    else
        updateVectorValue();
    announce({&UiData::valueCountChanged, &UiData::valueChanged});
}

void UiData::setValue(QVector<QVariant> elements)
{
    if (!mayWrite(elements != m_elements))
        return;
    m_elements = std::move(elements);
    joinElements();
    announce({&UiData::valueChanged, &UiData::valueCountChanged});
}

QVariant UiData::element(const QVariant& value) const
{
    const QString type = getType();
    const QVariant plain = uiutils::plainValue(value);
    if (type == TYPE_VEC_DOUBLE)
        return plain.toDouble();
    if (type == TYPE_VEC_INT)
        return plain.toInt();
    return plain.toString();
}

void UiData::updateVectorValue()
{
    const QString nothing(QChar(0));
    const bool isText = getType() == TYPE_VEC_STRING;
    const QStringList parts = getValue().toString().split(QLatin1Char(','));
    m_elements.clear();
    m_elements.reserve(parts.size());
    for (const QString& part : parts) {
        if (!isText || part != nothing)
            m_elements.append(element(part));
    }
}

void UiData::joinElements()
{
    QStringList texts;
    texts.reserve(m_elements.size());
    for (const QVariant& part : qAsConst(m_elements))
        texts.append(part.toString());
    holdValue(texts.join(QLatin1Char(',')));
}

QString UiData::getValueString(bool showUnits) const
{
    if (BaseFormatter* formatter = getBaseFormatter())
        return uiutils::formattedText(*formatter, getValue(), showUnits);
    const QString type = getType();
    if (type == TYPE_BOOL)
        return getValue().toInt() != 0 ? tr("True") : tr("False");
    if (type == TYPE_ENUM) {
        const int position = m_enumValues.indexOf(getValue().toInt());
        return getValue().isValid() ? m_enumLabels.value(position) : QString();
    }
    return type == TYPE_DOUBLE ? uiutils::plainText(getValue().toDouble(), getPrecision()) : getValue().toString();
}

int UiData::getValueCount() const
{
    return m_elements.size();
}

QVariant UiData::variantAt(int ind) const
{
    return m_elements.value(ind);
}

QVariant UiData::at(int ind) const
{
    return variantAt(ind);
}

QVariant UiData::getArrayValue(int index) const
{
    return variantAt(index);
}

void UiData::setAt(int ind, QVariant const& val)
{
    if (!isWithin(ind, m_elements.size()))
        return;
    const QVariant written = element(val);
    if (!mayWrite(!uiutils::isSameValue(written, m_elements.at(ind))))
        return;
    m_elements[ind] = written;
    joinElements();
    announce({&UiData::valueChanged, &UiData::arraySelectionChanged});
}

void UiData::insertAt(int ind, const QVariant& val)
{
    if (!isVector() || !isWithin(ind, m_elements.size() + 1) || !mayWrite(true))
        return;
    m_elements.insert(ind, element(val));
    joinElements();
    announce({&UiData::valueChanged, &UiData::valueCountChanged, &UiData::arraySelectionChanged});
}

void UiData::removeAt(int at)
{
    if (!isWithin(at, m_elements.size()) || !mayWrite(true))
        return;
    m_elements.removeAt(at);
    m_arraySelection = qMax(0, qMin(m_arraySelection, m_elements.size() - 1));
    joinElements();
    announce({&UiData::valueChanged, &UiData::arraySelectionChanged, &UiData::valueCountChanged});
}

int UiData::getArraySelection() const
{
    return isWithin(m_arraySelection, m_elements.size()) ? m_arraySelection : -1;
}

void UiData::setArraySelection(int index)
{
    if (!isWithin(index, m_elements.size()))
        return;
    m_arraySelection = index;
    Q_EMIT arraySelectionChanged();
}

QString UiData::getArraySelectionString() const
{
    return variantAt(getArraySelection()).toString();
}
