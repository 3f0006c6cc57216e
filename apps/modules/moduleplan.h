#pragma once

#include "names/itemfacts.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::modules {

/// A choice of an item, as a property of its own.
struct Constant
{
    /// For example "cfg_mode_Auto".
    QString name;
    int value = 0;
    QString label;
};

/// An item of a module.
struct Member
{
    /// The item's `memberName` is the property.
    names::ItemFacts facts;
    QVector<Constant> constants;
};

/// The QML module of a service.
struct Module
{
    /// The name of the singleton and the last part of the module's, for example "Optical".
    QString name;
    /// What the names of the items in the context begin with, for example "optical".
    QString tag;
    /// In the order of their names.
    QVector<Member> members;
};

/// What can be described of services, and what cannot.
struct Plan
{
    /// In the order of their names.
    QVector<Module> modules;
    /// Sentences about items that are left out.
    QStringList notes;
    /// Sentences about services that get no module.
    QStringList problems;
};

/// The name of the module of a service with that tag, for example "WorkflowManagerApp" for "workflow_manager_app";
/// empty when QML allows no module of such a name.
QString moduleName(const QString& tag);

/// Plans a module for each service that has one of the items.
Plan plan(const QVector<names::ItemFacts>& items);

} // namespace uiutils::modules
