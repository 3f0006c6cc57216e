#include "iniclient.h"

#include "iniitem.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QVector>

namespace {

const QString settings = QStringLiteral(":config:");

/// The section "config.voltage" of the service "supply" holds the item ":config:supply:voltage:".
QString idOf(const QString& section, const QString& service)
{
    return QStringLiteral(":%1:%2:%3:")
            .arg(section.section(QLatin1Char('.'), 0, 0), service, section.section(QLatin1Char('.'), 1));
}

QString sectionOf(const QString& id)
{
    return id.section(QLatin1Char(':'), 1, 1) + QLatin1Char('.') + id.section(QLatin1Char(':'), 3, -2);
}

} // namespace

IniClient::IniClient(const QString& path, QObject* parent)
    : KIVClientInterface(parent)
    , m_path(path)
    , m_name(QFileInfo(path).completeBaseName())
{
    // The folder tells when the file comes, goes or is replaced, the file when it is written in place.
    m_watcher.addPath(QFileInfo(path).absolutePath());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &IniClient::read);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &IniClient::read);
    read();
}

// --- What the file says ---

void IniClient::read()
{
    const auto sections = readIni(m_path);
    m_isThere = sections.has_value();
    if (m_isThere && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
    const bool haveItemsChanged = takeItems(sections.value_or(QMap<QString, IniSection>()));
    // A slot may write, which reads again, or delete anything.
    QVector<QPointer<IniItem>> items;
    for (IniItem* item : qAsConst(m_items))
        items += item;
    const QPointer<IniClient> self(this);
    if (haveItemsChanged)
        Q_EMIT itemsChanged();
    for (const QPointer<IniItem>& item : qAsConst(items)) {
        if (self && item)
            item->notify();
    }
}

/// Returns whether items have come or gone.
bool IniClient::takeItems(const QMap<QString, IniSection>& sections)
{
    QMap<QString, IniSection> byId;
    for (auto it = sections.cbegin(); it != sections.cend(); ++it)
        byId.insert(idOf(it.key(), m_name), *it);
    bool hasChanged = false;
    for (const QString& id : m_items.keys()) {
        if (!byId.contains(id)) {
            delete m_items.take(id);
            hasChanged = true;
        }
    }
    for (auto it = byId.cbegin(); it != byId.cend(); ++it) {
        if (IniItem* item = m_items.value(it.key())) {
            item->take(*it);
        } else {
            m_items.insert(it.key(), new IniItem(it.key(), *it, this));
            hasChanged = true;
        }
    }
    return hasChanged;
}

QStringList IniClient::getItemIds(const QString& prefix) const
{
    QStringList ids;
    for (auto it = m_items.lowerBound(prefix); it != m_items.cend() && it.key().startsWith(prefix); ++it)
        ids += it.key();
    return ids;
}

bool IniClient::getItemList(const QString& service, QStringList* ids) const
{
    *ids = service == m_name ? getItemIds() : QStringList();
    return service == m_name && m_isThere;
}

KIVClientItem* IniClient::getItem(const QString& id) const
{
    return m_items.value(id);
}

// --- What pages set ---

bool IniClient::setItem(const QString& id, const QVariant& value)
{
    return set({{id, value}});
}

/// Sets all of the values, or none.
bool IniClient::set(const QVariantMap& valuesById)
{
    QMap<QString, QString> values;
    for (auto it = valuesById.cbegin(); it != valuesById.cend(); ++it) {
        const IniItem* item = it.key().startsWith(settings) ? m_items.value(it.key()) : nullptr;
        if (!item)
            return fail(tr("There is no setting \"%1\".").arg(it.key()));
        QString problem;
        const QString text = item->accepted(*it, &problem);
        if (text.isNull())
            return fail(problem);
        values.insert(sectionOf(it.key()), text);
    }
    QString problem;
    if (!writeIniValues(m_path, values, &problem))
        return fail(tr("The file %1 cannot be written: %2").arg(m_path, problem));
    m_error.clear();
    read();
    return true;
}

/// The one action that every service has: a batch of settings, as Manifest::applyChanges() sends it.
bool IniClient::sendAction(const QString& id, const QString& argument, QString*, int)
{
    if (id != QStringLiteral(":action:%1:applyconfig:").arg(m_name))
        return fail(tr("There is no action \"%1\".").arg(id));
    const QVariantMap wanted = QJsonDocument::fromJson(argument.toUtf8()).object().toVariantMap();
    QVariantMap byId;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
        byId.insert(settingId(it.key()), *it);
    return set(byId);
}

bool IniClient::invokeAction(const QString& id)
{
    return sendAction(id, {}, nullptr, callTimeout);
}

QString IniClient::settingId(const QString& nameOrId) const
{
    const QString id = settings + m_name + QLatin1Char(':') + nameOrId + QLatin1Char(':');
    return m_items.contains(id) ? id : nameOrId;
}

bool IniClient::fail(const QString& error)
{
    m_error = error;
    return false;
}
