#pragma once

#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivvecclientitem.h>

#include <QMap>
#include <QVector>

#include <functional>
#include <memory>

/// A service that records every call for the test, and reports only what the test says.
struct RecordedState
{
    QString id;
    QString type = "std::string";
    QVariant value;
    QVariantMap attributes;
    QString unit;
    bool ready = true;
    int quality = 0;
    bool applicable = true;
    QString expression;
};

template<typename Base>
class RecordedItem : public Base
{
public:
    explicit RecordedItem(RecordedState* state)
        : state(state)
    {
    }

    unsigned getType() const override
    {
        if (qobject_cast<const KivAggregateClientItem*>(this))
            return KIVClientItem::TypeAggregate;
        if (qobject_cast<const KivListAggregateClientItem*>(this))
            return KIVClientItem::TypeListAggregate;
        return KIVClientItem::TypeNone;
    }
    QString getTypeName() const override { return state->type; }
    QString getId() const override { return state->id; }
    QString getLabel() const override { return state->attributes.value("label").toString(); }
    QVariant getValue() const override { return state->value; }
    QString getValueString(bool showUnits) const override
    {
        return "<" + state->value.toString() + (showUnits ? state->unit : QString()) + ">";
    }
    QString getUnitString() const override { return state->unit; }
    QVariant getMinRange() const override { return state->attributes.value("minRange"); }
    QVariant getMaxRange() const override { return state->attributes.value("maxRange"); }
    bool isReady() const override { return state->ready; }
    int getQualityCode() const override { return state->quality; }
    bool isApplicable() const override { return state->applicable; }
    QString getApplicableExpr() const override { return state->expression; }
    QVariant getAttribute(const QString& name) const override { return state->attributes.value(name); }

    RecordedState* state;
};

class RecordedChoices : public KIVEnumChoicesClientItem
{
public:
    struct Choice
    {
        int value;
        QString name;
        QString label;
        bool applicable = true;
    };
    int count() const override { return choices.size(); }
    int valueAt(int position) const override { return choices.value(position, {-1, {}, {}, false}).value; }
    QString nameAt(int position) const override { return choices.value(position).name; }
    QString labelAt(int position) const override { return choices.value(position).label; }
    bool isApplicableAt(int position) const override { return choices.value(position, {-1, {}, {}, false}).applicable; }

    QVector<Choice> choices;
};

class RecordedEnum : public RecordedItem<KIVEnumClientItem>
{
public:
    using RecordedItem::RecordedItem;
    KIVEnumChoicesClientItem* getChoices() const override { return &choices; }
    mutable RecordedChoices choices;
};

class RecordedAggregate : public RecordedItem<KivAggregateClientItem>
{
public:
    using RecordedItem::RecordedItem;
    KivAggregate getAggregate() const override { return aggregate; }
    KivAggregate aggregate;
};

class RecordedList : public RecordedItem<KivListAggregateClientItem>
{
public:
    using RecordedItem::RecordedItem;
    KivListAggregate getListAggregate() const override { return list; }
    KivListAggregate list;
};

class RecordedClient : public KIVClientInterface
{
public:
    struct Call
    {
        QString what;
        QString id;
        QVariant argument;
        int timeout = 0;
        bool wantsReply = false;
    };

    ~RecordedClient() override { qDeleteAll(items); }

    bool isValid() const override { return valid; }
    QString getServiceName() const override { return "rec"; }
    QStringList getItemIds(const QString&) const override { return items.keys(); }
    bool getItemList(const QString&, QStringList* ids) const override
    {
        *ids = list;
        return true;
    }
    KIVClientItem* getItem(const QString& id) const override { return items.value(id); }
    bool setItem(const QString& id, const QVariant& value) override
    {
        if (onSet)
            onSet(value);
        return record({"set", id, value, 0, false});
    }
    bool sendAction(const QString& id, const QString& argument, QString* reply, int timeout) override
    {
        if (reply)
            *reply = "done " + argument;
        if (onSend)
            onSend();
        return record({"send", id, argument, timeout, reply != nullptr});
    }
    bool invokeAction(const QString& id) override { return record({"invoke", id, QVariant(), 0, false}); }
    QString getLastError() const override { return refusal; }

    bool valid = true;

    /// Adds an item of the kind `Item`.
    template<typename Item = RecordedItem<KIVClientItem>>
    Item* add(const QString& id, const QVariant& value = QVariant())
    {
        auto state = std::make_unique<RecordedState>();
        state->id = id;
        state->value = value;
        auto* item = new Item(state.get());
        states.push_back(std::move(state));
        items.insert(id, item);
        list.append(id);
        return item;
    }

    /// Removes an item as a service that vanished does.
    void remove(const QString& id)
    {
        delete items.take(id);
        Q_EMIT itemsChanged();
    }

    QVector<Call> calls;
    /// Called before the service answers.
    std::function<void(const QVariant&)> onSet;
    std::function<void()> onSend;
    /// Rejects every call with this text while it is not empty.
    QString refusal;
    QMap<QString, KIVClientItem*> items;
    QStringList list;

private:
    bool record(const Call& call)
    {
        calls.append(call);
        return refusal.isEmpty();
    }

    std::vector<std::unique_ptr<RecordedState>> states;
};

/// A platform with only that service.
class RecordedBackend : public KIVBackend
{
public:
    RecordedBackend() { setCurrent(this); }
    KIVClientInterface* baseManagerClient() override { return nullptr; }
    KIVClientInterface* serviceClient(const QString& service, QObject*) override { return service == "rec" ? client : nullptr; }

    KIVClientInterface* client = nullptr;
};
