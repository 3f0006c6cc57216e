#include "local/uidataenums.h"

#include <algorithm>

class uiutils::UiDataEnumsPrivate
{
public:
    QList<UiEnumType*> choices;
    bool isComplete = false;
};

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
    , d(std::make_unique<uiutils::UiDataEnumsPrivate>())
{
}

UiDataEnums::~UiDataEnums() = default;

QList<UiEnumType*> UiDataEnums::getEnumList() const
{
    return d->choices;
}

bool UiDataEnums::isComplete() const
{
    return d->isComplete;
}

UiEnumType* UiDataEnums::at(int i) const
{
    return d->choices.value(i);
}

void UiDataEnums::append(UiEnumType* a)
{
    if (!a)
        return;
    d->choices.append(a);
    connect(a, &UiEnumType::applicableChanged, this, &UiDataEnums::itemsChanged, Qt::UniqueConnection);
    connect(a, &QObject::destroyed, this, &UiDataEnums::forget, Qt::UniqueConnection);
    if (d->isComplete)
        Q_EMIT itemsChanged();
}

void UiDataEnums::forget(QObject* choice)
{
    // Only its address can be used now.
    const auto end = std::remove_if(d->choices.begin(), d->choices.end(),
            [choice](const UiEnumType* kept) { return static_cast<const QObject*>(kept) == choice; });
    if (end == d->choices.end())
        return;
    d->choices.erase(end, d->choices.end());
    if (d->isComplete)
        Q_EMIT itemsChanged();
}

QQmlListProperty<QObject> UiDataEnums::getItems()
{
    const auto clear = [](QQmlListProperty<QObject>* property) {
        if (UiDataEnums* owner = ownerOf(property))
            owner->d->choices.clear();
    };
    return QQmlListProperty<QObject>(this, nullptr, appendChoice, countChoices, choiceAt, clear);
}

void UiDataEnums::classBegin() { }

void UiDataEnums::componentComplete()
{
    d->isComplete = true;
    Q_EMIT itemsChanged();
}
