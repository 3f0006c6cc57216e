#pragma once

#include "check/services/filefindings.h"
#include "check/services/jsontree.h"
#include "names/itemfacts.h"

#include <embedded/servicedescription.h>

#include <QHash>
#include <QJsonObject>

namespace uiutils::check {

/// An item of a service file that may be wrong.
struct ServiceItem
{
    const JsonNode* node = nullptr;
    /// A KIVClientItem::TypeCode; none for an unknown type.
    unsigned type = 0;
    kiv::embedded::ItemDescription description;
    names::ItemFacts facts;

    /// The member of the item's object; the object itself without it.
    const JsonNode& part(const char* key) const
    {
        const JsonNode* member = node->member(key);
        return member ? *member : *node;
    }
};

/// A service file with everything that can be known of it, and what is wrong in it.
struct ServiceDocument
{
    explicit ServiceDocument(const QString& file)
        : path(file)
        , findings(file)
    {
    }
    Q_DISABLE_COPY(ServiceDocument)

    /// Reads the file; what cannot be read, or does not conform to the schema, is among the findings.
    void read();

    const ServiceItem* item(const QString& id) const
    {
        const int index = byId.value(id, -1);
        return index < 0 ? nullptr : &items.at(index);
    }
    /// The array of items in the text; null without one.
    const JsonNode* itemList() const { return tree.isRead ? tree.root.member("items") : nullptr; }
    /// Whether the item is as the schema has it.
    bool isSound(const ServiceItem& item) const;

    const QString path;
    QByteArray text;
    JsonTree tree;
    QJsonObject document;
    kiv::embedded::ServiceDescription description;
    /// The elements of `items` that are objects.
    QVector<ServiceItem> items;
    /// By id, the index of the first item that has it.
    QHash<QString, int> byId;
    FileFindings findings;

private:
    bool readText();
    bool isUtf8();
    void checkSchema();
    void findItems();
};

} // namespace uiutils::check
