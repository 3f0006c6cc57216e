#include "itemrows.h"

#include "base/searchform_p.h"
#include "favourites.h"
#include "languages/languages.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <kiv/kivclientinterface.h>

#include <algorithm>
#include <iterator>

namespace uiutils::inspector {

ItemRows::ItemRows(Favourites* favourites, QObject* parent)
    : QAbstractListModel(parent)
    , m_favourites(favourites)
{
    connect(favourites, &Favourites::changed, this, &ItemRows::showFavourite);
    connect(Languages::instance(), &Languages::currentChanged, this, &ItemRows::forgetLabels);
}

void ItemRows::add(Manifest* manifest)
{
    const int service = int(m_manifests.size());
    m_manifests.emplace_back(manifest);
    const auto follow = [this, service] { collect(service); };
    // After the manifest, which was there first, has made wrappers of new items.
    if (manifest->client())
        connect(manifest->client(), &KIVClientInterface::itemsChanged, this, follow);
    connect(manifest, &QObject::destroyed, this, follow);
    replace(service, itemsOf(service));
}

void ItemRows::collect(int service)
{
    // Wrappers of a service that is away do not know what pages call them; their rows stay as they are.
    if (!m_manifests[service] || m_manifests[service]->isAvailable())
        replace(service, itemsOf(service));
}

std::vector<ItemRows::Entry> ItemRows::itemsOf(int service) const
{
    std::vector<Entry> entries;
    const Manifest* const manifest = m_manifests[service];
    if (!manifest)
        return entries;
    const KIVClientInterface* const client = manifest->isAvailable() ? manifest->client() : nullptr;
    entries.reserve(size_t(manifest->children().size()));
    for (QObject* const child : manifest->children()) {
        auto* const item = qobject_cast<KivData*>(child);
        if (!item || (client && !client->getItem(item->getId())))
            continue;
        const QString name = item->getQmlTag();
        entries.push_back({item, item->getId(), name.isEmpty() ? item->getId() : name, service, QString()});
    }
    return entries;
}

/// The rows are reset only if the items are others than before: a list that is reset goes back to its beginning.
void ItemRows::replace(int service, std::vector<Entry> entries)
{
    const auto isBefore = [](const Entry& entry, int number) { return entry.service < number; };
    const auto first = std::lower_bound(m_entries.begin(), m_entries.end(), service, isBefore);
    const auto last = std::lower_bound(first, m_entries.end(), service + 1, isBefore);
    const bool isSame = std::equal(entries.begin(), entries.end(), first, last,
            [](const Entry& a, const Entry& b) { return a.item == b.item && a.name == b.name; });
    if (isSame)
        return;
    beginResetModel();
    m_entries.insert(m_entries.erase(first, last), std::make_move_iterator(entries.begin()),
            std::make_move_iterator(entries.end()));
    chooseRows();
    endResetModel();
    Q_EMIT countChanged();
}

void ItemRows::setText(const QString& text)
{
    const QStringList words = searchForm(text).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    filter();
    Q_EMIT filterChanged();
}

void ItemRows::setFavouritesOnly(bool isOnly)
{
    if (isOnly == m_favouritesOnly)
        return;
    m_favouritesOnly = isOnly;
    filter();
    Q_EMIT filterChanged();
}

void ItemRows::filter()
{
    beginResetModel();
    chooseRows();
    endResetModel();
    Q_EMIT countChanged();
}

void ItemRows::chooseRows()
{
    m_rows.clear();
    for (int i = 0; i < int(m_entries.size()); ++i) {
        if (isKept(m_entries[i]))
            m_rows.push_back(i);
    }
}

bool ItemRows::isKept(const Entry& entry) const
{
    if (m_favouritesOnly && !m_favourites->contains(entry.id))
        return false;
    return std::all_of(m_words.begin(), m_words.end(),
            [&entry](const QString& word) { return searchedText(entry).contains(word); });
}

const QString& ItemRows::searchedText(const Entry& entry)
{
    if (entry.searched.isEmpty()) {
        const QString label = entry.item ? entry.item->getLabel() : QString();
        entry.searched = searchForm(QStringList {entry.name, label, entry.id}.join(QLatin1Char('\n')));
    }
    return entry.searched;
}

int ItemRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ItemRows::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const Entry& entry = m_entries[m_rows[index.row()]];
    switch (role) {
    case ItemRole:
        return QVariant::fromValue<QObject*>(entry.item);
    case IdRole:
        return entry.id;
    case NameRole:
        return entry.name;
    case FavouriteRole:
        return m_favourites->contains(entry.id);
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> ItemRows::roleNames() const
{
    return {{ItemRole, "rowItem"}, {IdRole, "rowId"}, {NameRole, "rowName"}, {FavouriteRole, "rowFavourite"}};
}

int ItemRows::rowOf(QObject* item) const
{
    const auto row = std::find_if(
            m_rows.begin(), m_rows.end(), [this, item](int entry) { return item && m_entries[entry].item == item; });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

void ItemRows::setFavourite(const QString& id, bool isFavourite)
{
    m_favourites->set(id, isFavourite);
}

bool ItemRows::isFavourite(const QString& id) const
{
    return m_favourites->contains(id);
}

void ItemRows::showFavourite(const QString& id)
{
    if (m_favouritesOnly)
        return filter();
    for (int row = 0; row < count(); ++row) {
        if (m_entries[m_rows[row]].id == id)
            Q_EMIT dataChanged(index(row), index(row), {FavouriteRole});
    }
}

/// Labels have another language; those that are shown follow by their items.
void ItemRows::forgetLabels()
{
    for (const Entry& entry : m_entries)
        entry.searched.clear();
    if (!m_words.isEmpty())
        filter();
}

} // namespace uiutils::inspector
