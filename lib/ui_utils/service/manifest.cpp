#include "service/manifest.h"

#include "core/itemids.h"
#include "service/kivaggregatedata.h"
#include "service/kivcontextobject_p.h"
#include "service/kivdata.h"
#include "service/kivlistaggregatedata.h"

#include <kiv/kivaggregateclientitem.h>

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlContext>
#include <QVector>

namespace itemids = uiutils::itemids;

QMap<QString, KivData*>& Manifest::m_items = *new QMap<QString, KivData*>;
QPointer<QQmlContext> Manifest::s_pContext;

namespace {

/// The name under which the service expects a setting in a batch: the index of an indexed one ("level_3") stands behind a
/// colon. Names of up to three characters stay as they are.
QString batchName(QString name)
{
    const int last = name.size() - 1;
    if (last > 2 && name.at(last).isDigit() && name.at(last - 1) == QLatin1Char('_'))
        name[last - 1] = QLatin1Char(':');
    return name;
}

/// The JSON text with everything beyond ASCII escaped: services differ in whether they take the argument for text or for
/// the bytes of its UTF-8, and so it reads the same either way.
QString plainJson(const QVariantMap& values)
{
    const QString json = QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(values)).toJson());
    QString plain;
    plain.reserve(json.size());
    for (const QChar unit : json) {
        if (unit.unicode() < 0x80)
            plain += unit;
        else
            plain += QStringLiteral("\\u%1").arg(int(unit.unicode()), 4, 16, QLatin1Char('0'));
    }
    return plain;
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

Manifest::~Manifest() = default;

void Manifest::registerItem(const QString& id)
{
    KIVClientItem* item = m_client->getItem(id);
    if (!item)
        return;
    KivData* wrapper = nullptr;
    auto* aggregate = item->getType() == KIVClientItem::TypeAggregate ? qobject_cast<KivAggregateClientItem*>(item) : nullptr;
    auto* list = item->getType() == KIVClientItem::TypeListAggregate ? qobject_cast<KivListAggregateClientItem*>(item)
                                                                    : nullptr;
    if (aggregate)
        wrapper = new KivAggregateData(aggregate, this);
    else if (list)
        wrapper = new KivListAggregateData(list, this);
    else
        wrapper = new KivData(item, this);
    m_items.insert(id, wrapper);
}

/// Follows the service through vanishing and coming back.
void Manifest::bindItems()
{
    QVector<QPointer<KivData>> wrappers;
    for (QObject* child : children()) {
        if (auto* wrapper = qobject_cast<KivData*>(child))
            wrappers.append(wrapper);
    }
    const QPointer<Manifest> self(this);
    for (const QPointer<KivData>& wrapper : qAsConst(wrappers)) {
        if (!self || !m_client)
            return;
        if (!wrapper)
            continue;
        KIVClientItem* item = m_client->getItem(wrapper->m_id);
        // An item that was destroyed leaves the wrapper without one, whatever its address was.
        if (item != wrapper->m_item || !item)
            wrapper->bindItem(item);
    }
}

void Manifest::forget(const QString& id, const KivData* wrapper)
{
    const auto entry = m_items.find(id);
    if (entry != m_items.end() && *entry == wrapper)
        *entry = nullptr;
}

void Manifest::startChanges()
{
    m_changing = true;
}

void Manifest::applyChanges()
{
    m_changing = false;
    QVariantMap changes;
    QVector<QPointer<KivData>> senders;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        KivData* wrapper = m_items.value(id);
        if (!wrapper || !wrapper->m_changed || wrapper->m_sent)
            continue;
        changes.insert(batchName(wrapper->getName()), wrapper->m_value);
        wrapper->m_sent = true;
        senders.append(wrapper);
    }

    if (!m_client || send(actionId(itemids::applyConfig), plainJson(changes)))
        return;
    // Of this service, which answered for the settings of the others too.
    const QString error = m_client ? m_client->getLastError() : QString();
    for (const QPointer<KivData>& wrapper : qAsConst(senders)) {
        if (!wrapper)
            continue;
        wrapper->m_sent = false;
        wrapper->refuse(error);
    }
}

void Manifest::revertChanges()
{
    m_changing = false;
    const QStringList ids = m_items.keys();
    for (const QString& id : ids) {
        if (KivData* wrapper = m_items.value(id))
            wrapper->revert();
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
