#pragma once

#include "core/dynamicobject_p.h"

class KIVClientItem;
class KIVEnumChoicesClientItem;

namespace uiutils {

/// The choices of an enumeration; null for other items and for none.
KIVEnumChoicesClientItem* choicesOf(KIVClientItem* item);

/// The values of choices as properties that bear the choices' names.
class EnumNames final : public DynamicObject
{
public:
    /// An object with the choices as they are now. Choices without a name are left out; of equal names the first
    /// counts.
    static EnumNames* create(const KIVEnumChoicesClientItem& choices, QObject* parent);

private:
    EnumNames(const QVector<QByteArray>& names, const QVector<int>& values, QObject* parent);
    void readProperty(int index, void* result) const override;

    QVector<int> m_values;
};

} // namespace uiutils
