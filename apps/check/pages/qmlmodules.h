#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace uiutils::check {

/// A QML module as its folder describes it.
struct QmlModule
{
    QString folder;
    QSet<QString> types;
    /// Of the types that are QML files: where these are.
    QHash<QString, QString> files;
    QSet<QString> singletons;
    /// Names of properties, and of parameters of signals, of all types.
    QSet<QString> properties;
    /// The first parts of the versions in which it has types.
    QSet<QString> versions;
    /// Whether these are all types. A module that is a library can have types of which no file tells.
    bool isComplete = true;
    /// Whether it is below one of the user's folders.
    bool isOfUser = false;
};

/// The QML modules of this machine.
class QmlModules
{
public:
    /// Modules are searched in the folders, then with those of this library, then with Qt's.
    explicit QmlModules(const QStringList& importFolders);

    /// The module of a name such as "QtQuick.Controls" and a version such as "2.15", which may be empty. Null where no
    /// folder has it.
    const QmlModule* find(const QString& name, const QString& version);
    /// The names of all modules that the folders have.
    const QStringList& names();
    /// The name of a module that has a type; empty where none is known.
    QString moduleWith(const QString& type);
    /// Where modules are searched, in this order.
    QStringList folders() const { return m_folders; }

private:
    std::unique_ptr<QmlModule> read(const QString& folder);
    /// Reads a description of types, or a type that is a QML file. False if it cannot be read.
    bool readTypes(const QString& file, QmlModule* module);

    const int m_foldersOfUser;
    QStringList m_folders;
    std::vector<std::unique_ptr<QmlModule>> m_modules;
    QHash<QString, const QmlModule*> m_found;
    QStringList m_names;
};

/// The types that every page has.
const QSet<QString>& builtInTypes();

/// The properties of these types, of which no file tells.
const QSet<QString>& builtInProperties();

} // namespace uiutils::check
