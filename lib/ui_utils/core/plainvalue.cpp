#include "core/plainvalue_p.h"

#include <QJSValue>

#include <algorithm>
#include <cmath>

namespace uiutils {

QVariant plainValue(const QVariant& value)
{
    return value.userType() == qMetaTypeId<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

bool isSameValue(const QVariant& a, const QVariant& b)
{
    if (a.userType() != b.userType())
        return false;
    if (a.userType() == QMetaType::Double)
        return a.toDouble() == b.toDouble() || (std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
    if (a.userType() == QMetaType::QVariantList) {
        const QVariantList as = a.toList();
        const QVariantList bs = b.toList();
        return std::equal(as.cbegin(), as.cend(), bs.cbegin(), bs.cend(), isSameValue);
    }
    return a == b && a.isNull() == b.isNull();
}

QVariant fittedValue(const QVariant& value, int type)
{
    QVariant fitted = value;
    if (value.userType() == type || type == QMetaType::UnknownType || !value.isValid() || !fitted.convert(type))
        return value;
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const bool isKept = isNumber ? fitted.toDouble() == number : fitted.toString() == value.toString();
    return isKept ? fitted : value;
}

} // namespace uiutils
