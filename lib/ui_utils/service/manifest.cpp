#include "service/manifest.h"

#include "base/batchname_p.h"
#include "core/itemids_p.h"
#include "service/changewatch_p.h"
#include "service/itemregistry_p.h"
#include "service/kivaggregatedata.h"
#include "service/kivcontextobject_p.h"
#include "service/kivdata_p.h"
#include "service/kivlistaggregatedata.h"
#include "service/manifeststate_p.h"

#include <kiv/kivaggregateclientitem.h>
#if __has_include(<kiv/kivrejectedsettings.h>)
#include <kiv/kivrejectedsettings.h>
#define UIUTILS_HAS_REJECTED_SETTINGS
#endif

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlContext>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace itemids = uiutils::itemids;
namespace itemregistry = uiutils::itemregistry;
using uiutils::KivDataPrivate;

/// What a manifest keeps of its service and its transaction.
class uiutils::ManifestPrivate : public ManifestState
{
public:
    explicit ManifestPrivate(Manifest* owner)
        : q(owner)
    {
    }

    /// The wrappers that send their changes, by the names in the batch.
    using Senders = QMap<QString, QPointer<KivData>>;

    static ManifestPrivate* of(const Manifest* manifest) { return manifest->d.get(); }
    static QVector<Manifest*>& all();
    static void noteManifests();

    QVector<QPointer<KivData>> wrappers() const;
    bool registerItems();
    bool registerItem(const QString& id);
    void bindItems();
    void noteAvailability();
    QString actionId(QLatin1String action) const;
    bool send(const QString& actionId, const QString& argument);
    bool sendBatch(const Senders& senders);
    void endChanges();
    static void reject(const Senders& senders, const QString& reason, const QMap<QString, QString>& rejected);

    QString name;
    QString manifestId;
    /// The items that have been given wrappers.
    QSet<QString> known;
    bool wasAvailable = false;

private:
    Manifest* q;
};

using uiutils::ManifestPrivate;

QMap<QString, KivData*>& Manifest::m_items = itemregistry::entries();
QPointer<QQmlContext>& Manifest::s_pContext = itemregistry::qmlContext();

namespace {

/// The wrappers of an id: the registered one, then the displaced ones, the latest first.
QVector<QPointer<KivData>> wrappersOf(const QString& id, KivData* registered)
{
    QVector<QPointer<KivData>> list {registered};
    const QVector<KivData*> earlier = itemregistry::displaced(id);
    std::copy(earlier.crbegin(), earlier.crend(), std::back_inserter(list));
    return list;
}

bool isPending(const KivData* wrapper)
{
    return wrapper && KivDataPrivate::of(wrapper)->isPending();
}

/// A setting whose service is away has no name to send it under; its change waits.
bool canTravel(const KivData* wrapper)
{
    return isPending(wrapper) && KivDataPrivate::of(wrapper)->item;
}

/// The latest wrapper of the id with a change that can be sent; null without one.
KivData* senderOf(const QString& id)
{
    const QVector<QPointer<KivData>> wrappers = wrappersOf(id, itemregistry::find(id));
    const auto sender = std::find_if(wrappers.cbegin(), wrappers.cend(), canTravel);
    return sender == wrappers.cend() ? nullptr : sender->data();
}

/// Which settings the client's service has rejected, by the names in the batch; empty if it does not say.
QMap<QString, QString> rejectedSettings(KIVClientInterface* client)
{
#ifdef UIUTILS_HAS_REJECTED_SETTINGS
    if (const auto* report = qobject_cast<KIVRejectedSettings*>(client))
        return report->rejectedSettings();
#endif
    return {};
}

} // namespace

const uiutils::ManifestState* uiutils::manifestState(const QObject* parent)
{
    const auto* manifest = qobject_cast<const Manifest*>(parent);
    return manifest ? ManifestPrivate::of(manifest) : nullptr;
}

Manifest* uiutils::toManifest(QObject* parent)
{
    return qobject_cast<Manifest*>(parent);
}

QObject* uiutils::toObject(Manifest* manifest)
{
    return manifest;
}

const QVector<Manifest*>& uiutils::allManifests()
{
    return ManifestPrivate::all();
}

void uiutils::setChanging(Manifest* manifest, bool isChanging)
{
    ManifestPrivate::of(manifest)->isChanging = isChanging;
    ManifestPrivate::noteManifests();
}

bool uiutils::sendChanges(Manifest* manifest, const QVector<QPointer<KivData>>& wrappers)
{
    ManifestPrivate* parts = ManifestPrivate::of(manifest);
    const QPointer<Manifest> self(manifest);
    ManifestPrivate::Senders senders;
    QVector<QPointer<KivData>> namesakes;
    for (const QPointer<KivData>& wrapper : wrappers) {
        const QPointer<KivData> sender = wrapper ? senderOf(wrapper->getId()) : nullptr;
        const QString name = sender ? toBatchName(sender->getName()) : QString();
        if (sender && !senders.contains(name))
            senders.insert(name, sender);
        else if (sender && senders.value(name) != sender)
            namesakes.append(sender);
    }
    if (senders.isEmpty())
        return true;
    return parts->client && parts->sendBatch(senders) && self && sendChanges(manifest, namesakes);
}

/// Never destroyed, because manifests may outlive every other static object.
QVector<Manifest*>& ManifestPrivate::all()
{
    static auto& manifests = *new QVector<Manifest*>;
    return manifests;
}

void ManifestPrivate::noteManifests()
{
    if (ChangeWatch* watch = ChangeWatch::current())
        watch->noteManifests();
    ChangeWatch::flush();
}

Manifest::Manifest(KIVClientInterface* client, QString const& qmlTag, QString const& name, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ManifestPrivate>(this))
{
    d->client = client;
    d->name = name;
    d->qmlTag = qmlTag.isEmpty() ? name : qmlTag;
    ManifestPrivate::all().append(this);
    if (!client)
        return;
    connect(client, &KIVClientInterface::itemsChanged, this, [this] { d->bindItems(); });
    d->wasAvailable = isAvailable();
    d->registerItems();
}

Manifest::~Manifest()
{
    ManifestPrivate::all().removeOne(this);
    d->endChanges();
    if (!itemregistry::hasDisplaced())
        return;
    // After these have been deleted, pages continue with the wrappers that have their entries back.
    const QVector<QPointer<KivData>> own = d->wrappers();
    for (const QPointer<KivData>& wrapper : own)
        delete wrapper;
    KIVContextObject::evaluateNames();
}

QString Manifest::getQmlTag() const
{
    return d->qmlTag;
}

QString Manifest::getServiceName() const
{
    return d->name;
}

KIVClientInterface* Manifest::client() const
{
    return d->client;
}

bool Manifest::isChanging() const
{
    return d->isChanging;
}

bool Manifest::isAvailable() const
{
    return d->client && d->client->isValid();
}

QVector<QPointer<KivData>> ManifestPrivate::wrappers() const
{
    QVector<QPointer<KivData>> list;
    for (QObject* child : q->children()) {
        if (auto* wrapper = qobject_cast<KivData*>(child))
            list.append(wrapper);
    }
    return list;
}

/// Makes wrappers of the items that are not known yet. Returns whether there were any.
bool ManifestPrivate::registerItems()
{
    QStringList ids;
    client->getItemList(name, &ids);
    // A list may name an item twice; the later wrapper counts.
    const QSet<QString> before = known;
    bool areNew = false;
    for (const QString& id : qAsConst(ids)) {
        if (id.endsWith(itemids::manifest))
            manifestId = id;
        else if (!before.contains(id))
            areNew = registerItem(id) || areNew;
    }
    return areNew;
}

bool ManifestPrivate::registerItem(const QString& id)
{
    KIVClientItem* item = client->getItem(id);
    if (!item)
        return false;
    KivData* wrapper = nullptr;
    auto* aggregate
            = item->getType() == KIVClientItem::TypeAggregate ? qobject_cast<KivAggregateClientItem*>(item) : nullptr;
    auto* list = item->getType() == KIVClientItem::TypeListAggregate ? qobject_cast<KivListAggregateClientItem*>(item)
                                                                     : nullptr;
    if (aggregate)
        wrapper = new KivAggregateData(aggregate, q);
    else if (list)
        wrapper = new KivListAggregateData(list, q);
    else
        wrapper = new KivData(item, q);
    itemregistry::enter(id, wrapper);
    known.insert(id);
    return true;
}

/// Follows the service when it comes, vanishes and returns, and when it publishes further items.
void ManifestPrivate::bindItems()
{
    const QVector<QPointer<KivData>> own = wrappers();
    const QPointer<Manifest> self(q);
    const ChangeBatch batch;
    bool hasReturned = false;
    for (const QPointer<KivData>& wrapper : own) {
        if (!self || !client)
            return;
        if (!wrapper)
            continue;
        KivDataPrivate* parts = KivDataPrivate::of(wrapper);
        // A wrapper that has its item keeps it: items that vanished have been destroyed.
        if (parts->item)
            continue;
        KIVClientItem* item = client->getItem(parts->id);
        hasReturned = hasReturned || item;
        if (item || parts->isBound)
            parts->bindItem(item);
    }
    if (!self || !client)
        return;
    // Pages that are there already learn names from a new context object.
    if (registerItems() && Manifest::qmlContext())
        Manifest::setQmlContext(Manifest::qmlContext());
    // What never changes while an item is available is read once, perhaps before it was available.
    if (hasReturned)
        KIVContextObject::evaluateNames();
    if (self)
        noteAvailability();
}

void ManifestPrivate::noteAvailability()
{
    const bool isAvailable = q->isAvailable();
    if (isAvailable == wasAvailable)
        return;
    wasAvailable = isAvailable;
    Q_EMIT q->isAvailableChanged();
}

void Manifest::startChanges()
{
    uiutils::setChanging(this, true);
}

void Manifest::applyChanges()
{
    const uiutils::ChangeBatch batch;
    uiutils::setChanging(this, false);
    if (!d->client)
        return;
    // By name: of settings with one name, the batch has the last one, and the others stay pending.
    ManifestPrivate::Senders senders;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        if (KivData* sender = senderOf(id))
            senders.insert(uiutils::toBatchName(sender->getName()), sender);
    }
    d->sendBatch(senders);
}

/// Returns whether the service has accepted the batch.
bool ManifestPrivate::sendBatch(const Senders& senders)
{
    const ChangeBatch batch;
    const auto& entries = itemregistry::entries();
    QVariantMap changes;
    QVector<QPointer<KivData>> outdone;
    for (auto it = senders.cbegin(); it != senders.cend(); ++it) {
        KivDataPrivate* parts = KivDataPrivate::of(*it);
        changes.insert(it.key(), parts->value);
        parts->isSent = true;
        // Another wrapper's change of the same item would be sent later and replace this one.
        const QVector<QPointer<KivData>> wrappers = wrappersOf(parts->id, entries.value(parts->id));
        std::copy_if(wrappers.cbegin(), wrappers.cend(), std::back_inserter(outdone), isPending);
    }

    // The service reads the text as bytes. What it reports meanwhile may delete the manifest.
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(changes)).toJson();
    const QPointer<KIVClientInterface> asked = client;
    if (!send(actionId(itemids::applyConfig), QString::fromLatin1(json.constData()))) {
        // This service has answered for the settings of other services too.
        reject(senders, asked ? asked->getLastError() : QString(), rejectedSettings(asked));
        return false;
    }
    for (const QPointer<KivData>& wrapper : senders) {
        if (wrapper)
            KivDataPrivate::of(wrapper)->noteChange();
    }
    for (const QPointer<KivData>& wrapper : qAsConst(outdone)) {
        if (wrapper)
            wrapper->revert();
    }
    return true;
}

/// Ends the transaction and all changes before the wrappers are deleted one by one.
void ManifestPrivate::endChanges()
{
    const ChangeBatch batch;
    uiutils::setChanging(q, false);
    const QVector<QPointer<KivData>> own = ChangeWatch::current() ? wrappers() : QVector<QPointer<KivData>>();
    for (const QPointer<KivData>& wrapper : own)
        ChangeWatch::current()->noteEnd(wrapper);
}

void ManifestPrivate::reject(const Senders& senders, const QString& reason, const QMap<QString, QString>& rejected)
{
    QMap<QString, KivData*> batch;
    for (auto it = senders.cbegin(); it != senders.cend(); ++it) {
        if (!*it)
            continue;
        KivDataPrivate::of(*it)->isSent = false;
        batch.insert(it.key(), *it);
    }
    if (ChangeWatch* watch = ChangeWatch::current())
        watch->noteBatch(batch, reason, rejected);
    for (const QPointer<KivData>& wrapper : senders) {
        if (wrapper)
            KivDataPrivate::of(wrapper)->reject(reason);
    }
}

void Manifest::revertChanges()
{
    const uiutils::ChangeBatch batch;
    uiutils::setChanging(this, false);
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
    if (d->client)
        d->send(d->actionId(itemids::saveConfig),
                friendlyName + QLatin1Char(',') + QString::number(int(hasHomeScreenIcon)));
}

QString ManifestPrivate::actionId(QLatin1String action) const
{
    QString id = manifestId;
    return id.replace(itemids::result, itemids::action).replace(itemids::manifest, action);
}

bool ManifestPrivate::send(const QString& actionId, const QString& argument)
{
    return client->sendAction(actionId, argument, nullptr, KIVClientInterface::callTimeout);
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
    // Bindings may still use the one before, so each stays until the context is deleted.
    QObject::connect(context, &QObject::destroyed, names, [names] { delete names; });
    context->setContextObject(names);
    itemregistry::tellNameUsers(itemregistry::Told::Changes);
}
