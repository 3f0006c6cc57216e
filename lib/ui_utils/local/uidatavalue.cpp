// The part of UiData that takes, holds and shows values and their elements.

#include "local/uidata_p.h"

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

#include <limits>
#include <utility>

using uiutils::isWithin;
using uiutils::UiDataPrivate;

namespace {

constexpr int longestVectorText = 1024 * 1024;

QString joined(const QVector<double>& numbers, int digits = 15)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', digits));
    return texts.join(QLatin1Char(','));
}

bool hasMilliseconds(const QTime& time)
{
    return time.msec() != 0;
}

QString timeText(const QTime& time)
{
    const QString seconds = hasMilliseconds(time) ? QStringLiteral(":ss.zzz")
            : time.second() != 0                  ? QStringLiteral(":ss")
                                                  : QString();
    return time.toString(QLatin1String("HH:mm") + seconds);
}

/// The text that stands for the value in a QML file, if there is one: "1,2" for a point, "10:20" for a time. Other
/// values as they are.
QVariant asLiteral(const QVariant& value)
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
        return timeText(value.toTime());
    case QMetaType::QDateTime:
        return value.toDateTime().toString(hasMilliseconds(value.toTime()) ? Qt::ISODateWithMs : Qt::ISODate);
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    case QMetaType::QColor: {
        const QColor color = value.value<QColor>();
        return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    }
    default:
        return value;
    }
}

QString textOf(const QVariant& value)
{
    return asLiteral(value).toString();
}

/// The text of a vector: its elements, separated by commas, whatever form QML gave it in.
QString vectorText(const QVariant& value)
{
    if (value.type() != QVariant::List && value.type() != QVariant::StringList)
        return textOf(value);
    return value.toStringList().join(QLatin1Char(','));
}

/// An integer of 32 bits; 0 for any other value.
int wholeNumber(const QVariant& value)
{
    if (value.type() == QVariant::String)
        return value.toString().toInt();
    const double number = value.toDouble();
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits ? qRound(number) : 0;
}

} // namespace

bool UiDataPrivate::isVectorType() const
{
    const QString type = q->getType();
    return type == UiData::TYPE_VEC_INT || type == UiData::TYPE_VEC_DOUBLE || type == UiData::TYPE_VEC_STRING;
}

/// QML turns the literal "1,2" into a point and "10:20" into a time where any value is accepted. A text is what was
/// written.
QVariant UiDataPrivate::declared(const QVariant& given) const
{
    return isBeingDeclared && (q->getType() == UiData::TYPE_STRING || isVectorType()) ? asLiteral(given) : given;
}

void UiData::setValue(QVariant value)
{
    value = uiutils::plainValue(value);
    if (!d->isVectorType()) {
        value = d->declared(value);
        if (!mayWrite(!uiutils::isSameValue(value, getValue())))
            return;
        d->isTextStale = false;
        holdValue(value);
        announce({&UiData::valueChanged});
        return;
    }
    const QString text = vectorText(value).left(longestVectorText);
    // An empty text is one empty element, an empty list none.
    const bool isNone
            = text.isEmpty() && value.isValid() && value.type() != QVariant::String && value.toList().isEmpty();
    if (!mayWrite(text != getValue() || isNone != d->elements.isEmpty()))
        return;
    d->holdText(text);
    if (isNone)
        d->elements.clear();
    else
        d->updateVectorValue();
    announce({&UiData::valueCountChanged, &UiData::valueChanged});
}

void UiData::setValue(QVector<QVariant> elements)
{
    if (!mayWrite(elements != d->elements))
        return;
    d->elements = std::move(elements);
    d->isTextStale = true;
    announce({&UiData::valueChanged, &UiData::valueCountChanged});
}

QVariant UiDataPrivate::element(const QVariant& given) const
{
    const QString type = q->getType();
    const QVariant plain = uiutils::plainValue(given);
    if (type == UiData::TYPE_VEC_DOUBLE)
        return plain.toDouble();
    if (type == UiData::TYPE_VEC_INT)
        return wholeNumber(plain);
    return plain.toString();
}

void UiDataPrivate::updateVectorValue()
{
    const QString nothing(QChar(0));
    const bool takesTexts = q->getType() == UiData::TYPE_VEC_STRING;
    const QStringList parts = q->getValue().toString().split(QLatin1Char(','));
    elements.clear();
    elements.reserve(parts.size());
    for (const QString& part : parts) {
        if (!takesTexts || part != nothing)
            elements.append(element(part));
    }
}

QVariant UiData::getValue() const
{
    if (d->isTextStale)
        d->joinElements();
    return KivData::getValue();
}

void UiDataPrivate::joinElements()
{
    QStringList texts;
    texts.reserve(elements.size());
    for (const QVariant& part : qAsConst(elements))
        texts.append(part.toString());
    holdText(texts.join(QLatin1Char(',')));
}

void UiDataPrivate::holdText(const QString& text)
{
    isTextStale = false;
    owner()->holdValue(text);
}

QString UiData::getValueString(bool showUnits) const
{
    if (BaseFormatter* formatter = getBaseFormatter())
        return uiutils::formattedText(*formatter, getValue(), showUnits);
    const QString type = getType();
    if (type == TYPE_BOOL)
        return getValue().toInt() != 0 ? tr("True") : tr("False");
    if (type == TYPE_ENUM) {
        const int position = d->enumValues.indexOf(getValue().toInt());
        return getValue().isValid() ? d->enumLabels.value(position) : QString();
    }
    return type == TYPE_DOUBLE ? uiutils::fixedPointText(getValue().toDouble(), getPrecision()) : textOf(getValue());
}

int UiData::getValueCount() const
{
    return d->elements.size();
}

QVariant UiData::variantAt(int ind) const
{
    return d->elements.value(ind);
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
    if (!isWithin(ind, d->elements.size()))
        return;
    const QVariant written = d->element(val);
    if (!mayWrite(!uiutils::isSameValue(written, d->elements.at(ind))))
        return;
    d->elements[ind] = written;
    d->isTextStale = true;
    announce({&UiData::valueChanged, &UiData::arraySelectionChanged});
}

void UiData::insertAt(int ind, const QVariant& val)
{
    if (!d->isVectorType() || !isWithin(ind, d->elements.size() + 1) || !mayWrite(true))
        return;
    d->elements.insert(ind, d->element(val));
    d->isTextStale = true;
    announce({&UiData::valueChanged, &UiData::valueCountChanged, &UiData::arraySelectionChanged});
}

void UiData::removeAt(int at)
{
    if (!isWithin(at, d->elements.size()) || !mayWrite(true))
        return;
    d->elements.removeAt(at);
    // If the last element was selected, the new last one is.
    if (d->arraySelection == d->elements.size() && !d->elements.isEmpty())
        --*d->arraySelection;
    d->isTextStale = true;
    announce({&UiData::valueChanged, &UiData::arraySelectionChanged, &UiData::valueCountChanged});
}

int UiData::getArraySelection() const
{
    return d->arraySelection.value_or(d->elements.isEmpty() ? -1 : 0);
}

void UiData::setArraySelection(int index)
{
    d->arraySelection = index;
    Q_EMIT arraySelectionChanged();
}

QString UiData::getArraySelectionString() const
{
    return variantAt(getArraySelection()).toString();
}
