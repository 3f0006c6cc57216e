#pragma once

#include "base/servicetag_p.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace uiutils::names {

/// One of the values that an item may have.
struct Choice
{
    int value = 0;
    /// The name in `item.enums`.
    QString name;
    QString label;
};

/// What pages can know of an item before they run.
struct ItemFacts
{
    enum Kind {
        Value,
        /// A value with members.
        Aggregate,
        /// Rows of members.
        Table,
    };

    /// The full name of the service, for example "com.example.optical".
    QString service;
    /// What the names of the service's items begin with, for example "optical".
    QString tag;
    /// For example ":config:optical:setup:mode:".
    QString id;
    /// For example "mode".
    QString name;
    /// For example "cfg_mode"; empty for an id without a category.
    QString memberName;
    Kind kind = Value;
    /// As KivData::getType() says it: "double", "std::vector<string>", "aggregate" ….
    QString type;
    QString label;
    QString unit;
    /// Invalid without a limit; of a text, limits of its length.
    QVariant minimum;
    QVariant maximum;
    /// Of an enumeration.
    QVector<Choice> choices;
    bool isEnumeration = false;
    /// A KivData::InputType.
    unsigned inputType = 0;
    /// Of an item that is away, with its service or alone, only the id and what follows from it are known.
    bool isThere = true;

    /// The name in the context of pages, for example "optical_cfg_mode".
    QString contextName() const { return tag + QLatin1Char('_') + memberName; }
    bool isSetting() const { return id.startsWith(QLatin1String(":config")); }
    bool isAction() const { return id.startsWith(QLatin1String(":action:")); }
};

using uiutils::tagOf;

/// All items that the manifests of this process have, or had, in the order of their ids.
QVector<ItemFacts> factsOfManifests();

/// The items of a service file, in its order, as far as it says anything of them: the document may be wrong.
QVector<ItemFacts> factsOfDocument(const QJsonObject& document);

} // namespace uiutils::names
