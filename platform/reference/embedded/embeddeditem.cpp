#include "embeddeditem_p.h"

#include "shownvalue_p.h"

#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivvecclientitem.h>

namespace kiv::embedded {

namespace {

/// An item that answers from the state. It has no signals of its own, so that one template serves all kinds.
template<class Kind> class StatefulItem : public Kind
{
public:
    StatefulItem(std::shared_ptr<ItemState> state, QObject* parent)
        : Kind(parent)
        , m_state(std::move(state))
    {
    }

    unsigned getType() const final { return m_state->type; }
    QString getTypeName() const final { return m_state->typeName(); }
    QString getId() const final { return m_state->description.id; }
    QString getLabel() const final { return m_state->label(); }
    QVariant getValue() const final { return m_state->description.value; }
    QString getValueString(bool showUnits = true) const final { return m_state->valueText(showUnits); }
    QString getUnitString() const final { return m_state->unitText(); }
    QVariant getMinRange() const final { return m_state->description.minimum; }
    QVariant getMaxRange() const final { return m_state->description.maximum; }
    bool isReady() const final { return m_state->description.isReady; }
    int getQualityCode() const final { return m_state->description.quality; }
    bool isApplicable() const final { return m_state->description.isApplicable; }
    QString getApplicableExpr() const final { return m_state->description.applicableExpr; }
    QVariant getAttribute(const QString& name) const final { return m_state->attribute(name); }

protected:
    const ItemDescription& description() const { return m_state->description; }
    const std::shared_ptr<ItemState>& state() const { return m_state; }

private:
    const std::shared_ptr<ItemState> m_state;
};

using PlainItem = StatefulItem<KIVClientItem>;
using ArrayItem = StatefulItem<KIVVecClientItem>;

class Choices final : public KIVEnumChoicesClientItem
{
public:
    Choices(std::shared_ptr<ItemState> state, QObject* parent)
        : KIVEnumChoicesClientItem(parent)
        , m_state(std::move(state))
    {
    }

    int count() const override { return choices().size(); }
    int valueAt(int position) const override { return contains(position) ? choices().at(position).value : -1; }
    QString nameAt(int position) const override { return choices().value(position).name; }
    QString labelAt(int position) const override
    {
        return contains(position) ? choiceLabel(m_state->description, choices().at(position)) : QString();
    }
    bool isApplicableAt(int position) const override
    {
        return contains(position) && choices().at(position).isApplicable;
    }

private:
    bool contains(int position) const { return position >= 0 && position < choices().size(); }
    const QVector<ChoiceDescription>& choices() const { return m_state->description.choices; }

    const std::shared_ptr<ItemState> m_state;
};

class EnumItem final : public StatefulItem<KIVEnumClientItem>
{
public:
    using StatefulItem::StatefulItem;

    KIVEnumChoicesClientItem* getChoices() const override
    {
        if (!m_choices)
            m_choices = new Choices(state(), const_cast<EnumItem*>(this));
        return m_choices;
    }

private:
    mutable KIVEnumChoicesClientItem* m_choices = nullptr;
};

class AggregateItem final : public StatefulItem<KivAggregateClientItem>
{
public:
    using StatefulItem::StatefulItem;

    KivAggregate getAggregate() const override
    {
        const QVariantMap aggregate = description().value.toMap();
        QVector<QPair<QByteArray, QVariant>> members;
        for (const MemberDescription& member : description().members)
            members.append({member.name.toUtf8(), aggregate.value(member.name)});
        return KivAggregate(members);
    }
};

class ListAggregateItem final : public StatefulItem<KivListAggregateClientItem>
{
public:
    using StatefulItem::StatefulItem;

    KivListAggregate getListAggregate() const override
    {
        QList<QByteArray> names;
        for (const MemberDescription& member : description().members)
            names.append(member.name.toUtf8());
        return KivListAggregate(names, rows());
    }

private:
    QVector<QVariantList> rows() const
    {
        QVector<QVariantList> rows;
        const QVariantList tableRows = description().value.toList();
        rows.reserve(tableRows.size());
        for (const QVariant& aggregate : tableRows) {
            const QVariantMap values = aggregate.toMap();
            QVariantList row;
            for (const MemberDescription& member : description().members)
                row.append(values.value(member.name));
            rows.append(row);
        }
        return rows;
    }
};

} // namespace

KIVClientItem* createItem(const std::shared_ptr<ItemState>& state, QObject* parent)
{
    switch (state->type) {
    case KIVClientItem::TypeStringArray:
    case KIVClientItem::TypeDoubleArray:
        return new ArrayItem(state, parent);
    case KIVClientItem::TypeAggregate:
        return new AggregateItem(state, parent);
    case KIVClientItem::TypeListAggregate:
        return new ListAggregateItem(state, parent);
    default:
        break;
    }
    if (state->isEnumeration())
        return new EnumItem(state, parent);
    return new PlainItem(state, parent);
}

void tellChoices(KIVClientItem* item)
{
    const auto* enumeration = qobject_cast<KIVEnumClientItem*>(item);
    KIVEnumChoicesClientItem* choices = enumeration ? enumeration->getChoices() : nullptr;
    if (choices)
        Q_EMIT choices->valueChanged();
}

} // namespace kiv::embedded
