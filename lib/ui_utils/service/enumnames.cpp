#include "service/enumnames_p.h"

#include <kiv/kivenumclientitem.h>

#include <QSet>

namespace uiutils {

KIVEnumChoicesClientItem* choicesOf(KIVClientItem* item)
{
    const auto* enumeration = qobject_cast<KIVEnumClientItem*>(item);
    return enumeration ? enumeration->getChoices() : nullptr;
}

EnumNames* EnumNames::create(const KIVEnumChoicesClientItem& choices, QObject* parent)
{
    QVector<QByteArray> names;
    QVector<int> values;
    QSet<QByteArray> known;
    for (int i = 0, count = choices.count(); i < count; ++i) {
        const QByteArray name = choices.nameAt(i).toUtf8();
        if (name.isEmpty() || known.contains(name))
            continue;
        known.insert(name);
        names.append(name);
        values.append(choices.valueAt(i));
    }
    return new EnumNames(names, values, parent);
}

EnumNames::EnumNames(const QVector<QByteArray>& names, const QVector<int>& values, QObject* parent)
    : DynamicObject("EnumNames", names, QMetaType::Int, Changes::None, parent)
    , m_values(values)
{
}

void EnumNames::readProperty(int index, void* result) const
{
    *static_cast<int*>(result) = m_values.at(index);
}

} // namespace uiutils
