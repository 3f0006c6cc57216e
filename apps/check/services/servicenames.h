#pragma once

#include "check/services/servicedocument.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <vector>

namespace uiutils::check {

using Documents = std::vector<std::unique_ptr<ServiceDocument>>;

/// Where a name of pages leads.
struct NamedItem
{
    ServiceDocument* document = nullptr;
    const ServiceItem* item = nullptr;
};

/// The names by which pages and expressions know the items of all files. The documents must outlive it, and their items
/// stay where they are.
class ServiceNames
{
public:
    explicit ServiceNames(const Documents& documents);

    /// The item that has the name first; without one, null.
    NamedItem item(const QString& contextName) const { return m_items.value(contextName); }
    /// The item that has the id first, of all files.
    NamedItem itemOfId(const QString& id) const { return m_ids.value(id); }
    bool hasTag(const QString& tag) const { return m_tags.contains(tag); }
    /// " Did you mean …?" for names that pages know; empty without any. `shorten` writes those of the tag as
    /// expressions do: "cfg.mode".
    QString proposalFor(const QString& contextName, const QString& ownTag) const;
    const QStringList& all() const { return m_all; }

private:
    QHash<QString, NamedItem> m_items;
    QHash<QString, NamedItem> m_ids;
    QHash<QString, ServiceDocument*> m_tags;
    QStringList m_all;
    mutable int m_comparisons = 0;
};

/// What is wrong with the names of services and items: those that QML cannot spell, and those that several have.
void checkNames(const Documents& documents, const ServiceNames& names);

} // namespace uiutils::check
