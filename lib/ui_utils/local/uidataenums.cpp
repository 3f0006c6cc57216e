#include "local/uidataenums.h"

#include <algorithm>

namespace {

UiDataEnums* ownerOf(QQmlListProperty<QObject>* property)
{
    return qobject_cast<UiDataEnums*>(property->object);
}

void appendChoice(QQmlListProperty<QObject>* property, QObject* object)
{
    if (UiDataEnums* owner = ownerOf(property))
        owner->append(qobject_cast<UiEnumType*>(object));
}

int countChoices(QQmlListProperty<QObject>* property)
{
    const UiDataEnums* owner = ownerOf(property);
    return owner ? owner->getEnumList().size() : 0;
}

QObject* choiceAt(QQmlListProperty<QObject>* property, int index)
{
    const UiDataEnums* owner = ownerOf(property);
    return owner ? owner->at(index) : nullptr;
}

} // namespace

UiDataEnums::UiDataEnums(QObject* parent)
    : QObject(parent)
{
}

UiDataEnums::~UiDataEnums() = default;

UiEnumType* UiDataEnums::at(int i) const
{
    return m_choices.value(i);
}

void UiDataEnums::append(UiEnumType* a)
{
    if (!a)
        return;
    m_choices.append(a);
    connect(a, &UiEnumType::applicableChanged, this, &UiDataEnums::itemsChanged, Qt::UniqueConnection);
    connect(a, &QObject::destroyed, this, &UiDataEnums::forget, Qt::UniqueConnection);
    if (m_complete)
        Q_EMIT itemsChanged();
}

void UiDataEnums::forget(QObject* choice)
{
    // Only its address is left of it.
    const auto end = std::remove_if(m_choices.begin(), m_choices.end(),
            [choice](const UiEnumType* kept) { return static_cast<const QObject*>(kept) == choice; });
    if (end == m_choices.end())
        return;
    m_choices.erase(end, m_choices.end());
    if (m_complete)
        Q_EMIT itemsChanged();
}

QQmlListProperty<QObject> UiDataEnums::getItems()
{
    const auto clear = [](QQmlListProperty<QObject>* property) {
        if (UiDataEnums* owner = ownerOf(property))
            owner->m_choices.clear();
    };
    return QQmlListProperty<QObject>(this, nullptr, appendChoice, countChoices, choiceAt, clear);
}

void UiDataEnums::classBegin() { }

void UiDataEnums::componentComplete()
{
    m_complete = true;
    Q_EMIT itemsChanged();
}
