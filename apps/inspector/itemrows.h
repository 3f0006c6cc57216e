#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

class KivData;
class Manifest;

namespace uiutils::inspector {

class Favourites;

/// The items of services that the user looks for, service by service, each in the order of its service. An item stays
/// while its service is away; it goes when the service is there without it, and with its manifest.
///
/// The model holds names only. Who shows a row binds to the item of the row.
class ItemRows : public QAbstractListModel
{
    Q_OBJECT
    /// What is looked for: every word must be found in the name, the label or the id, however it is capitalized. Names
    /// begin with that of their service.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY filterChanged)
    Q_PROPERTY(bool favouritesOnly READ areFavouritesOnly WRITE setFavouritesOnly NOTIFY filterChanged)
    /// How many rows there are, and how many there would be without any filter.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int total READ total NOTIFY countChanged)

public:
    enum Role {
        ItemRole = Qt::UserRole,
        IdRole,
        NameRole,
        FavouriteRole,
    };

    /// `favourites` must outlive the model.
    explicit ItemRows(Favourites* favourites, QObject* parent = nullptr);

    /// Follows the items of a service, until its manifest is deleted.
    void add(Manifest* manifest);

    QString text() const { return m_words.join(QLatin1Char(' ')); }
    void setText(const QString& text);
    bool areFavouritesOnly() const { return m_favouritesOnly; }
    void setFavouritesOnly(bool isOnly);
    int count() const { return int(m_rows.size()); }
    int total() const { return int(m_entries.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The row of an item, or -1.
    Q_INVOKABLE int rowOf(QObject* item) const;
    Q_INVOKABLE void setFavourite(const QString& id, bool isFavourite);
    Q_INVOKABLE bool isFavourite(const QString& id) const;

Q_SIGNALS:
    void filterChanged();
    void countChanged();

private:
    struct Entry
    {
        QPointer<KivData> item;
        QString id;
        QString name;
        int service = 0;
        /// What words are looked for in; made by the first search.
        mutable QString searched;
    };

    void collect(int service);
    std::vector<Entry> itemsOf(int service) const;
    void replace(int service, std::vector<Entry> entries);
    void filter();
    void chooseRows();
    bool isKept(const Entry& entry) const;
    static const QString& searchedText(const Entry& entry);
    void showFavourite(const QString& id);
    void forgetLabels();

    Favourites* const m_favourites;
    std::vector<QPointer<Manifest>> m_manifests;
    std::vector<Entry> m_entries;
    std::vector<int> m_rows;
    QStringList m_words;
    bool m_favouritesOnly = false;
};

} // namespace uiutils::inspector
