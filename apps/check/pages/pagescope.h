#pragma once

#include "check/pages/pageitems.h"
#include "check/pages/pagenames.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <private/qqmljsast_p.h>

namespace uiutils::check {

class PageFile;

/// What the imports of a file bring.
struct FileImports
{
    /// The tags of services by the names of the singletons that have their items.
    QHash<QString, QString> singletons;
    /// What stands before a type of the kit: nothing, or "Kit."; without the kit no text at all.
    QString kitPrefix;
    bool hasKit = false;
    /// Of types that are files of the user: where these are.
    QHash<QString, QString> files;
    /// Names of types that files beside the page define.
    QSet<QString> ownTypes;
    /// Names of types, where all imports are known.
    QSet<QString> types;
    bool isComplete = false;
    /// Modules that have the types that no import brings.
    QHash<QString, QString> homes;
    /// Names of properties that objects of imported types have.
    QSet<QString> properties;
};

/// What an expression stands for, as far as that is certain before a page runs.
struct Meaning
{
    enum Kind {
        Unknown,
        /// An item.
        Item,
        /// What an item has under a name: `member`.
        OfItem,
        /// The choices of an item by their names.
        Choices,
        Services,
        /// A service with the name `member`.
        Service,
        /// The singleton with the items of the service whose tag is `member`.
        Singleton,
    };

    Kind kind = Unknown;
    const names::ItemFacts* item = nullptr;
    QString member;

    bool isValue() const { return kind == OfItem && member == QLatin1String("value"); }
};

/// One file among all that are checked.
class PageScope
{
public:
    PageScope(const PageFile& file, const PageNames& names, const PageItems& items, const FileImports& imports)
        : file(file)
        , names(names)
        , items(items)
        , imports(imports)
    {
    }

    Meaning meaningOf(QQmlJS::AST::ExpressionNode* expression) const { return meaningOf(expression, 0); }

    const PageFile& file;
    const PageNames& names;
    const PageItems& items;
    const FileImports& imports;

private:
    Meaning meaningOf(QQmlJS::AST::ExpressionNode* expression, int depth) const;
    Meaning ofName(const QString& name, int depth) const;
    Meaning ofMember(const Meaning& base, const QString& name) const;
};

} // namespace uiutils::check
