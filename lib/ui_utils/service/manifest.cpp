#include "service/manifest.h"

#include "base/batchname_p.h"
#include "core/itemids.h"
#include "service/kivaggregatedata.h"
#include "service/kivcontextobject_p.h"
#include "service/kivdata.h"
#include "service/kivlistaggregatedata.h"

#include <kiv/kivaggregateclientitem.h>

#include <QDebug>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlContext>

#include <algorithm>
#include <iterator>

namespace itemids = uiutils::itemids;

QMap<QString, KivData*>& Manifest::m_items = *new QMap<QString, KivData*>;
QPointer<QQmlContext> Manifest::s_pContext;

namespace {

/// Wrappers whose entry later ones have taken, by their id, the earliest first. Never destroyed, as the registry.
QHash<QString, QVector<KivData*>>& displaced = *new QHash<QString, QVector<KivData*>>;

/// The wrappers of an id, the registered one first and then the displaced ones, the latest first.
QVector<QPointer<KivData>> wrappersOf(const QString& id, KivData* registered)
{
    QVector<QPointer<KivData>> list {registered};
    const QVector<KivData*> earlier = displaced.value(id);
    std::copy(earlier.crbegin(), earlier.crend(), std::back_inserter(list));
    return list;
}

} // namespace

Manifest::Manifest(KIVClientInterface* client, QString const& qmlTag, QString const& name, QObject* parent)
    : QObject(parent)
    , m_client(client)
    , m_name(name)
    , m_qmlTag(qmlTag)
{
    if (!client)
        return;
    connect(client, &KIVClientInterface::itemsChanged, this, &Manifest::bindItems);
    QStringList ids;
    client->getItemList(name, &ids);
    for (const QString& id : qAsConst(ids)) {
        if (id.endsWith(itemids::manifest))
            m_manifestId = id;
        else
            registerItem(id);
    }
}

Manifest::~Manifest()
{
    if (displaced.isEmpty())
        return;
    // Pages go on with the wrappers that have their entries back when these have gone.
    const QVector<QPointer<KivData>> own = wrappers();
    for (const QPointer<KivData>& wrapper : own)
        delete wrapper;
    KIVContextObject::evaluateNames();
}

QVector<QPointer<KivData>> Manifest::wrappers() const
{
    QVector<QPointer<KivData>> list;
    for (QObject* child : children()) {
        if (auto* wrapper = qobject_cast<KivData*>(child))
            list.append(wrapper);
    }
    return list;
}

void Manifest::registerItem(const QString& id)
{
    KIVClientItem* item = m_client->getItem(id);
    if (!item)
        return;
    KivData* wrapper = nullptr;
    auto* aggregate
            = item->getType() == KIVClientItem::TypeAggregate ? qobject_cast<KivAggregateClientItem*>(item) : nullptr;
    auto* list = item->getType() == KIVClientItem::TypeListAggregate ? qobject_cast<KivListAggregateClientItem*>(item)
                                                                     : nullptr;
    if (aggregate)
        wrapper = new KivAggregateData(aggregate, this);
    else if (list)
        wrapper = new KivListAggregateData(list, this);
    else
        wrapper = new KivData(item, this);
    KivData*& entry = m_items[id];
    if (entry)
        displaced[id].append(entry);
    entry = wrapper;
}

/// Follows the service through vanishing and coming back.
void Manifest::bindItems()
{
    const QVector<QPointer<KivData>> own = wrappers();
    const QPointer<Manifest> self(this);
    bool hasReturned = false;
    for (const QPointer<KivData>& wrapper : own) {
        if (!self || !m_client)
            return;
        if (!wrapper)
            continue;
        // One that has its item keeps it: items that are gone have been destroyed.
        if (wrapper->m_item)
            continue;
        KIVClientItem* item = m_client->getItem(wrapper->m_id);
        hasReturned = hasReturned || item;
        if (item || wrapper->m_isBound)
            wrapper->bindItem(item);
    }
    // What never changes while an item is there is read once, perhaps before it was there.
    if (hasReturned)
        KIVContextObject::evaluateNames();
}

void Manifest::forget(const QString& id, const KivData* wrapper)
{
    const auto entry = m_items.find(id);
    if (entry == m_items.end())
        return;
    const auto earlier = displaced.find(id);
    if (earlier == displaced.end()) {
        if (*entry == wrapper)
            *entry = nullptr;
        return;
    }
    if (*entry == wrapper)
        *entry = earlier->takeLast();
    else
        earlier->removeOne(const_cast<KivData*>(wrapper));
    if (earlier->isEmpty())
        displaced.erase(earlier);
}

void Manifest::startChanges()
{
    m_changing = true;
}

void Manifest::applyChanges()
{
    m_changing = false;
    if (!m_client)
        return;
    // By name: of settings with one name in a batch, the last one travels and the others stay pending.
    QMap<QString, QPointer<KivData>> senders;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        const QVector<QPointer<KivData>> wrappers = wrappersOf(id, m_items.value(id));
        // A setting whose service is away has no name to go by; its change waits.
        const auto sender = std::find_if(wrappers.cbegin(), wrappers.cend(),
                [](const KivData* wrapper) { return wrapper && wrapper->isPending() && wrapper->m_item; });
        if (sender != wrappers.cend())
            senders.insert(uiutils::toBatchName((*sender)->getName()), *sender);
    }
    QVariantMap changes;
    QVector<QPointer<KivData>> outdone;
    for (auto it = senders.cbegin(); it != senders.cend(); ++it) {
        changes.insert(it.key(), (*it)->m_value);
        (*it)->m_sent = true;
        // Another wrapper's change of the same item would travel later, over this one.
        const QVector<QPointer<KivData>> wrappers = wrappersOf((*it)->m_id, m_items.value((*it)->m_id));
        std::copy_if(wrappers.cbegin(), wrappers.cend(), std::back_inserter(outdone),
                [](const KivData* wrapper) { return wrapper && wrapper->isPending(); });
    }

    // The service takes the text for bytes. What it reports on the way may end the manifest.
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(changes)).toJson();
    const QPointer<KIVClientInterface> client = m_client;
    if (send(actionId(itemids::applyConfig), QString::fromLatin1(json.constData()))) {
        for (const QPointer<KivData>& wrapper : qAsConst(outdone)) {
            if (wrapper)
                wrapper->revert();
        }
        return;
    }
    // This service answered for the settings of the others too.
    const QString error = client ? client->getLastError() : QString();
    for (const QPointer<KivData>& wrapper : qAsConst(senders)) {
        if (wrapper)
            wrapper->m_sent = false;
    }
    for (const QPointer<KivData>& wrapper : qAsConst(senders)) {
        if (wrapper)
            wrapper->refuse(error);
    }
}

void Manifest::revertChanges()
{
    m_changing = false;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        const QVector<QPointer<KivData>> wrappers = wrappersOf(id, m_items.value(id));
        for (const QPointer<KivData>& wrapper : wrappers) {
            if (wrapper)
                wrapper->revert();
        }
    }
}

void Manifest::saveConfig(QString const& friendlyName, bool hasHomeScreenIcon)
{
    if (m_client)
        send(actionId(itemids::saveConfig), friendlyName + QLatin1Char(',') + QString::number(int(hasHomeScreenIcon)));
}

QString Manifest::actionId(QLatin1String action) const
{
    QString id = m_manifestId;
    return id.replace(itemids::result, itemids::action).replace(itemids::manifest, action);
}

bool Manifest::send(const QString& actionId, const QString& argument)
{
    return m_client->sendAction(actionId, argument, nullptr, KIVClientInterface::callTimeout);
}

QStringList Manifest::getKivIds(QString const& contains, QString const& filter)
{
    QStringList ids;
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it) {
        if (it.key().contains(contains) && it.key().contains(filter))
            ids.append(it.key());
    }
    return ids;
}

KivData* Manifest::getKivData(QString const& id)
{
    return m_items.value(id);
}

QQmlContext* Manifest::qmlContext()
{
    return s_pContext;
}

void Manifest::setQmlContext(QQmlContext* context)
{
    if (!context) {
        qDebug(" Error setting QML context");
        return;
    }
    s_pContext = context;
    auto* names = new KIVContextObject(m_items, nullptr);
    // Bindings may still hold the one before, so each stays until the context is gone.
    QObject::connect(context, &QObject::destroyed, names, [names] { delete names; });
    context->setContextObject(names);
}
