#include "replayedservice_p.h"

#include "itemwords_p.h"
#include "replaytexts_p.h"

#include <embedded/embeddedservice.h>

#include <QJsonArray>

#include <algorithm>
#include <utility>

namespace kiv::replay {

namespace {

using embedded::ChoiceDescription;
using embedded::EmbeddedService;
using embedded::ItemDescription;

/// More than an instrument has.
constexpr int mostItems = 200 * 1000;
constexpr qint64 mostBytes = qint64(512) * 1024 * 1024;

QJsonValue fieldOf(const QJsonObject& fields, const char* name)
{
    return fields.value(QLatin1String(name));
}

QString textOf(const QJsonObject& fields, const char* name)
{
    return fieldOf(fields, name).toString();
}

QVariant valueOf(const QJsonObject& fields, const char* name)
{
    const QJsonValue value = fieldOf(fields, name);
    return value.isNull() ? QVariant() : value.toVariant();
}

QVector<ChoiceDescription> choicesOf(const QJsonObject& fields)
{
    QVector<ChoiceDescription> choices;
    const QJsonArray array = fieldOf(fields, "choices").toArray();
    for (const QJsonValue& choice : array) {
        const QJsonObject object = choice.toObject();
        choices.append({fieldOf(object, "value").toInt(), textOf(object, "name"), textOf(object, "label"),
                fieldOf(object, "applicable").toBool(true)});
    }
    return choices;
}

ItemDescription descriptionOf(const Entry& entry)
{
    ItemDescription item;
    item.id = entry.id;
    item.type = textOf(entry.fields, "type");
    item.label = textOf(entry.fields, "label");
    item.unit = textOf(entry.fields, "unit");
    item.value = valueOf(entry.fields, "value");
    item.attributes = fieldOf(entry.fields, "attributes").toObject().toVariantMap();
    item.precision = fieldOf(entry.fields, "precision").toInt(-1);
    item.minimum = valueOf(entry.fields, "minimum");
    item.maximum = valueOf(entry.fields, "maximum");
    item.choices = choicesOf(entry.fields);
    item.isEnumeration = entry.fields.contains(QLatin1String("choices"));
    const QJsonArray members = fieldOf(entry.fields, "members").toArray();
    for (const QJsonValue& member : members)
        item.members.append({textOf(member.toObject(), "name"), textOf(member.toObject(), "type")});
    int quality = KIVClientItem::QualityNone;
    readQuality(textOf(entry.fields, "quality"), &quality);
    item.quality = KIVClientItem::Quality(quality);
    item.isReady = fieldOf(entry.fields, "ready").toBool(true);
    item.isApplicable = fieldOf(entry.fields, "applicable").toBool(true);
    item.applicableExpr = textOf(entry.fields, "applicable");
    return item;
}

/// An item that differs in this is another item for its clients.
QByteArray natureOf(const ItemDescription& item)
{
    QStringList words {item.type, item.applicableExpr, QString::number(item.precision),
            QString::number(item.isEnumeration ? 1 : 0)};
    for (const embedded::MemberDescription& member : item.members)
        words << member.name << member.type;
    words += item.attributes.keys();
    return words.join(QLatin1Char('\n')).toUtf8();
}

/// A recording knows what actions did, not what they would do.
void rejectAction(EmbeddedService* service, const QString& id)
{
    service->setActionHandler(id, [](const QString&, QString* error) {
        *error = ReplayTexts::tr("This is a recording: nothing can be started or stopped in it.");
        return false;
    });
}

} // namespace

ReplayedService::ReplayedService(EmbeddedService* service, Holdings* holdings, PlayingTroubles* troubles)
    : m_service(service)
    , m_holdings(holdings)
    , m_troubles(troubles)
{
}

EmbeddedService* ReplayedService::service() const
{
    return m_service;
}

void ReplayedService::beginSnapshot()
{
    m_isInSnapshot = true;
    m_inSnapshot.clear();
}

void ReplayedService::endSnapshot()
{
    if (!m_isInSnapshot)
        return;
    m_isInSnapshot = false;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        if (!m_inSnapshot.contains(id))
            forget(id);
    }
    m_inSnapshot.clear();
    if (m_service)
        m_service->setReachable(true);
}

void ReplayedService::leave()
{
    if (m_service)
        m_service->setReachable(false);
}

void ReplayedService::reportError(const Entry& entry)
{
    if (m_service)
        m_service->reportError(textOf(entry.fields, "error"));
}

/// Counts that an item takes so much memory now. Returns false where there is not enough.
bool ReplayedService::makeRoom(const Item& now, Item* held) const
{
    const qint64 more = now.described + now.valued - held->described - held->valued;
    if (m_holdings->bytes + more > mostBytes) {
        ++m_troubles->excess;
        return false;
    }
    m_holdings->bytes += more;
    held->described = now.described;
    held->valued = now.valued;
    return true;
}

void ReplayedService::putItem(const Entry& entry, quint64 turn)
{
    const ItemDescription description = descriptionOf(entry);
    Item item;
    item.nature = natureOf(description);
    item.attributes = description.attributes;
    item.valued = memoryOf(fieldOf(entry.fields, "value"));
    item.described = memoryOf(entry.fields) - item.valued;
    item.turn = turn;
    m_turn = turn;
    if (m_isInSnapshot)
        m_inSnapshot += entry.id;
    const auto present = m_items.find(entry.id);
    if (present != m_items.end() && present->nature == item.nature) {
        present->turn = turn;
        if (makeRoom(item, &*present))
            update(description, &*present);
        return;
    }
    forget(entry.id);
    addItem(description, item);
}

void ReplayedService::addItem(const ItemDescription& description, const Item& item)
{
    if (m_holdings->items >= mostItems) {
        ++m_troubles->excess;
        return;
    }
    Item none;
    if (!makeRoom(item, &none))
        return;
    if (!m_service || !m_service->addItem(description)) {
        m_holdings->bytes -= item.described + item.valued;
        ++m_troubles->unfit;
        return;
    }
    ++m_holdings->items;
    m_items.insert(description.id, item);
    if (m_service && description.type == QLatin1String("action"))
        rejectAction(m_service, description.id);
}

void ReplayedService::forget(const QString& id)
{
    const auto item = m_items.constFind(id);
    if (item == m_items.cend())
        return;
    --m_holdings->items;
    m_holdings->bytes -= item->described + item->valued;
    m_items.erase(item);
    if (m_service)
        m_service->removeItem(id);
}

/// Whoever hears of a change may end the service.
void ReplayedService::update(const ItemDescription& description, Item* item)
{
    const QString& id = description.id;
    const QVariantMap before = std::exchange(item->attributes, description.attributes);
    bool fits = true;
    const auto set = [&](auto setter, const auto&... values) {
        if (m_service)
            fits = (m_service->*setter)(id, values...) && fits;
    };
    set(&EmbeddedService::setLabel, description.label);
    set(&EmbeddedService::setRange, description.minimum, description.maximum);
    for (auto it = description.attributes.cbegin(); it != description.attributes.cend(); ++it) {
        if (before.value(it.key()) != *it)
            set(&EmbeddedService::setAttribute, it.key(), *it);
    }
    set(&EmbeddedService::setUnit, description.unit);
    if (description.isEnumeration)
        set(&EmbeddedService::setChoices, description.choices);
    if (description.type != QLatin1String("action"))
        set(&EmbeddedService::setValue, description.value);
    set(&EmbeddedService::setQuality, description.quality);
    set(&EmbeddedService::setReady, description.isReady);
    if (description.applicableExpr.isEmpty())
        set(&EmbeddedService::setApplicable, description.isApplicable);
    m_troubles->unfit += fits ? 0 : 1;
}

void ReplayedService::removeItem(const Entry& entry)
{
    if (m_items.contains(entry.id))
        forget(entry.id);
    else
        ++m_troubles->unknown;
}

bool ReplayedService::changeItem(const Entry& entry, quint64 turn)
{
    const auto item = m_items.find(entry.id);
    if (item == m_items.end() || !m_service || !m_service->isReachable()) {
        ++m_troubles->unknown;
        return true;
    }
    if (turn != 0 && item->turn == turn)
        return false;
    item->turn = turn;
    m_turn = turn;
    Item now = *item;
    if (entry.fields.contains(QLatin1String("value")))
        now.valued = memoryOf(fieldOf(entry.fields, "value"));
    now.described = std::max(now.described, memoryOf(fieldOf(entry.fields, "choices")));
    if (!makeRoom(now, &*item))
        return true;
    m_troubles->unfit += apply(entry.id, entry.fields) ? 0 : 1;
    return true;
}

/// Applies the fields that a line has. Returns false when one does not fit.
bool ReplayedService::apply(const QString& id, const QJsonObject& fields) const
{
    const auto has = [&fields](const char* name) { return fields.contains(QLatin1String(name)); };
    bool fits = true;
    if (has("label"))
        fits = m_service->setLabel(id, textOf(fields, "label"));
    if (has("minimum") || has("maximum"))
        fits = m_service->setRange(id, valueOf(fields, "minimum"), valueOf(fields, "maximum")) && fits;
    if (has("unit"))
        fits = m_service->setUnit(id, textOf(fields, "unit")) && fits;
    if (m_service && has("choices"))
        fits = m_service->setChoices(id, choicesOf(fields)) && fits;
    if (m_service && has("value"))
        fits = m_service->setValue(id, valueOf(fields, "value")) && fits;
    return applyState(id, fields) && fits;
}

bool ReplayedService::applyState(const QString& id, const QJsonObject& fields) const
{
    const QJsonValue ready = fieldOf(fields, "ready");
    const QJsonValue applicable = fieldOf(fields, "applicable");
    const QJsonValue word = fieldOf(fields, "quality");
    int quality = KIVClientItem::QualityNone;
    bool fits = (ready.isUndefined() || ready.isBool()) && (applicable.isUndefined() || applicable.isBool())
            && (word.isUndefined() || readQuality(word.toString(), &quality));
    if (m_service && !word.isUndefined() && fits)
        fits = m_service->setQuality(id, KIVClientItem::Quality(quality));
    if (m_service && ready.isBool())
        fits = m_service->setReady(id, ready.toBool()) && fits;
    if (m_service && applicable.isBool())
        fits = m_service->setApplicable(id, applicable.toBool()) && fits;
    return fits;
}

} // namespace kiv::replay
