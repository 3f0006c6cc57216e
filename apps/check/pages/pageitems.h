#pragma once

#include "names/itemfacts.h"

#include <QHash>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::check {

/// What an item has under a name, or what a service has.
struct Member
{
    enum Kind {
        None,
        Property,
        Operation,
        Signal,
    };

    Kind kind = None;
    bool isWritable = false;
};

/// The items and services that pages can name.
class PageItems
{
public:
    explicit PageItems(const QVector<names::ItemFacts>& items);

    bool isEmpty() const { return m_items.isEmpty(); }
    /// The item with a name such as "optical_cfg_mode"; null for none.
    const names::ItemFacts* item(const QString& contextName) const;
    /// The item of a service by the tag of the service and, for example, "cfg_mode"; null for none.
    const names::ItemFacts* item(const QString& tag, const QString& memberName) const;
    /// Whether the module of a service has the name: an item, the value of a choice, or the service itself.
    bool hasMember(const QString& tag, const QString& name) const;
    bool hasTag(const QString& tag) const { return m_tags.contains(tag); }
    /// Whether the service takes several settings in one batch.
    bool takesBatches(const QString& service) const { return m_batchServices.contains(service); }
    bool hasService(const QString& name) const { return m_services.contains(name); }
    /// The tag whose module has that name: "WorkflowManager" for "workflow_manager". Empty for none.
    QString tagOfModule(const QString& moduleName) const { return m_modules.value(moduleName); }

    /// Names of items, as pages write them.
    QStringList contextNames() const { return m_byContextName.keys(); }
    /// The names of a service's items behind its tag.
    QStringList memberNames(const QString& tag) const { return m_memberNames.value(tag); }
    QStringList services() const { return m_services.values(); }
    QStringList tags() const { return m_tags.values(); }
    QStringList moduleNames() const { return m_modules.keys(); }

private:
    const QVector<names::ItemFacts> m_items;
    QHash<QString, int> m_byContextName;
    QHash<QString, QStringList> m_memberNames;
    QHash<QString, QString> m_modules;
    QSet<QString> m_tags;
    QSet<QString> m_services;
    QSet<QString> m_batchServices;
};

/// The choice with a name; null for none.
const names::Choice* choiceOf(const names::ItemFacts& item, const QString& name);

/// The service's tag in a name of the form TAG_cfg_NAME, TAG_res_NAME or TAG_act_NAME; empty for another form.
QString tagInName(const QString& name);

Member memberOf(const names::ItemFacts& item, const QString& name);
QStringList membersOf(const names::ItemFacts& item);
Member memberOfService(const QString& name);
QStringList membersOfServices();

bool isRecord(const names::ItemFacts& item);
bool isVector(const names::ItemFacts& item);
bool isNumber(const names::ItemFacts& item);
bool isSwitch(const names::ItemFacts& item);
/// Whether a user chooses a value; a switch is none.
bool isChoice(const names::ItemFacts& item);
bool isText(const names::ItemFacts& item);

} // namespace uiutils::check
