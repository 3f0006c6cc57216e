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

QVariant readValue(const QVariant& value, int type)
{
    QVariant read = value;
    if (value.userType() != QMetaType::QString || type == QMetaType::UnknownType || !read.convert(type))
        return value;
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const bool isKept
            = isNumber ? std::isfinite(number) && read.toDouble() == number : read.toString() == value.toString();
    return isKept ? read : value;
}

} // namespace uiutils
