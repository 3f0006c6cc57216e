#include "check/pages/qmlmodules.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/pages/shallowvisitor.h"
#include "module/modulepath.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QVector>

#include <algorithm>
#include <tuple>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

/// Reads a description of types that a tool has written of a library.
class DescriptionReader : public ShallowVisitor
{
public:
    explicit DescriptionReader(QmlModule* module)
        : m_module(module)
    {
    }

protected:
    bool visit(UiObjectDefinition* object) override
    {
        m_objects.append(toText(object->qualifiedTypeNameId));
        return true;
    }
    void endVisit(UiObjectDefinition*) override { m_objects.removeLast(); }
    /// Of types that are QML files.
    bool visit(UiPublicMember* member) override
    {
        m_module->properties.insert(member->name.toString());
        return true;
    }
    bool visit(UiScriptBinding* binding) override
    {
        const QString property = toText(binding->qualifiedId);
        ExpressionNode* const value = expressionOf(binding->statement);
        if (property == QLatin1String("name") && isOfProperty())
            enter(value);
        else if (property == QLatin1String("exports"))
            exportTypes(cast<ArrayPattern*>(value));
        return false;
    }

private:
    bool isOfProperty() const
    {
        return !m_objects.isEmpty()
                && (m_objects.constLast() == QLatin1String("Property")
                        || m_objects.constLast() == QLatin1String("Parameter"));
    }
    void enter(ExpressionNode* value)
    {
        if (const auto* const text = cast<StringLiteral*>(value))
            m_module->properties.insert(text->value.toString());
    }
    /// Of texts such as "QtQuick/Item 2.0".
    void exportTypes(ArrayPattern* list)
    {
        for (PatternElementList* element = list ? list->elements : nullptr; element; element = element->next) {
            const auto* const text = element->element ? cast<StringLiteral*>(element->element->initializer) : nullptr;
            if (!text)
                continue;
            const QString type = text->value.toString().section(QLatin1Char('/'), -1);
            m_module->types.insert(type.section(QLatin1Char(' '), 0, 0));
            m_module->versions.insert(type.section(QLatin1Char(' '), 1).section(QLatin1Char('.'), 0, 0));
        }
    }

    QmlModule* const m_module;
    QVector<QString> m_objects;
};

/// "QtQuick/Controls.2" and so on: the version may stand behind any part of the name.
QStringList placesOf(const QString& name, const QString& version)
{
    const QStringList parts = name.split(QLatin1Char('.'));
    QStringList versions;
    if (!version.isEmpty())
        versions << QLatin1Char('.') + version << QLatin1Char('.') + version.section(QLatin1Char('.'), 0, 0);
    QStringList places;
    for (const QString& suffix : qAsConst(versions)) {
        for (int marked = parts.size() - 1; marked >= 0; --marked) {
            QStringList marks = parts;
            marks[marked] += suffix;
            places += marks.join(QLatin1Char('/'));
        }
    }
    return places << parts.join(QLatin1Char('/'));
}

/// The lines of a module's list of contents, as words.
QVector<QStringList> linesOf(const QString& file)
{
    constexpr qint64 longest = 1024 * 1024;
    QVector<QStringList> lines;
    QFile list(file);
    if (!list.open(QIODevice::ReadOnly) || list.size() > longest)
        return lines;
    const QStringList texts = QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'));
    for (const QString& text : texts)
        lines += text.section(QLatin1Char('#'), 0, 0).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return lines;
}

QStringList environmentFolders()
{
    return qEnvironmentVariable("QML2_IMPORT_PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

} // namespace

const QSet<QString>& builtInTypes()
{
    static const QSet<QString> types {QStringLiteral("QtObject"), QStringLiteral("Component"),
            QStringLiteral("Connections"), QStringLiteral("Binding"), QStringLiteral("Timer"),
            QStringLiteral("Instantiator"), QStringLiteral("LoggingCategory"), QStringLiteral("ListModel"),
            QStringLiteral("ListElement"), QStringLiteral("ObjectModel"), QStringLiteral("DelegateModel"),
            QStringLiteral("DelegateModelGroup"), QStringLiteral("ItemSelectionModel"), QStringLiteral("Package"),
            QStringLiteral("WorkerScript")};
    return types;
}

const QSet<QString>& builtInProperties()
{
    static const QSet<QString> names {QStringLiteral("objectName"), QStringLiteral("target"), QStringLiteral("enabled"),
            QStringLiteral("ignoreUnknownSignals"), QStringLiteral("property"), QStringLiteral("value"),
            QStringLiteral("when"), QStringLiteral("delayed"), QStringLiteral("restoreMode"),
            QStringLiteral("interval"), QStringLiteral("repeat"), QStringLiteral("running"),
            QStringLiteral("triggeredOnStart"), QStringLiteral("active"), QStringLiteral("asynchronous"),
            QStringLiteral("model"), QStringLiteral("count"), QStringLiteral("delegate"), QStringLiteral("object"),
            QStringLiteral("name"), QStringLiteral("defaultLogLevel"), QStringLiteral("dynamicRoles"),
            QStringLiteral("children"), QStringLiteral("rootIndex"), QStringLiteral("items"),
            QStringLiteral("persistedItems"), QStringLiteral("groups"), QStringLiteral("filterOnGroup"),
            QStringLiteral("parts"), QStringLiteral("includeByDefault"), QStringLiteral("source")};
    return names;
}

QmlModules::QmlModules(const QStringList& importFolders)
    : m_foldersOfUser(importFolders.size())
    , m_folders(importFolders)
{
    const QString own = qmlImportPath();
    if (!own.isEmpty())
        m_folders += own;
    m_folders += environmentFolders();
    m_folders += QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath);
}

const QmlModule* QmlModules::find(const QString& name, const QString& version)
{
    const QString key = name + QLatin1Char(' ') + version;
    const auto known = m_found.constFind(key);
    if (known != m_found.constEnd())
        return *known;
    const QmlModule* module = nullptr;
    const QStringList places = placesOf(name, version);
    for (int i = 0; i < m_folders.size() && !module; ++i) {
        for (const QString& place : places) {
            const QString folder = m_folders.at(i) + QLatin1Char('/') + place;
            if (!QFile::exists(folder + QLatin1String("/qmldir")))
                continue;
            m_modules.push_back(read(folder));
            m_modules.back()->isOfUser = i < m_foldersOfUser;
            module = m_modules.back().get();
            break;
        }
    }
    m_found.insert(key, module);
    return module;
}

std::unique_ptr<QmlModule> QmlModules::read(const QString& folder)
{
    auto module = std::make_unique<QmlModule>();
    module->folder = folder;
    bool isLibrary = false;
    QStringList descriptions;
    const QVector<QStringList> lines = linesOf(folder + QLatin1String("/qmldir"));
    for (const QStringList& words : lines) {
        const QString first = words.value(0);
        if (first == QLatin1String("plugin")) {
            isLibrary = true;
        } else if (first == QLatin1String("typeinfo")) {
            descriptions += words.value(1);
        } else if (words.size() >= 3 && words.constLast().endsWith(QLatin1String(".qml"))) {
            const bool isMarked = first == QLatin1String("singleton") || first == QLatin1String("internal");
            const QString type = words.at(isMarked ? 1 : 0);
            module->types.insert(type);
            if (first != QLatin1String("internal"))
                module->versions.insert(words.at(words.size() - 2).section(QLatin1Char('.'), 0, 0));
            module->files.insert(type, folder + QLatin1Char('/') + words.constLast());
            if (first == QLatin1String("singleton"))
                module->singletons.insert(type);
        }
    }
    const QString usual = QStringLiteral("plugins.qmltypes");
    if (isLibrary && descriptions.isEmpty())
        descriptions += usual;
    for (const QString& description : qAsConst(descriptions))
        module->isComplete &= readTypes(folder + QLatin1Char('/') + description, module.get());
    for (const QString& file : qAsConst(module->files))
        readTypes(file, module.get());
    // What the library of the kit adds is for the kit itself.
    const bool isKit = folder.startsWith(qmlImportPath() + QLatin1Char('/')) && !module->files.isEmpty();
    module->isComplete |= isKit;
    return module;
}

bool QmlModules::readTypes(const QString& file, QmlModule* module)
{
    QVector<Finding> ignored;
    const std::unique_ptr<PageFile> types = PageFile::read(file, &ignored);
    if (!types || !types->page())
        return false;
    DescriptionReader reader(module);
    types->page()->accept(&reader);
    return true;
}

QString QmlModules::moduleWith(const QString& type)
{
    // The latest version of Qt's; the shortest name is the one that pages import.
    QStringList names = this->names();
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return std::make_tuple(a.count(QLatin1Char('.')), a.size(), a)
                < std::make_tuple(b.count(QLatin1Char('.')), b.size(), b);
    });
    for (const QString& name : qAsConst(names)) {
        const QmlModule* const module = find(name, QStringLiteral("2.15"));
        if (module && module->types.contains(type))
            return name;
    }
    return QString();
}

const QStringList& QmlModules::names()
{
    constexpr int deepest = 4;
    if (!m_names.isEmpty())
        return m_names;
    for (const QString& folder : qAsConst(m_folders)) {
        QDirIterator files(folder, {QStringLiteral("qmldir")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString place = QDir(folder).relativeFilePath(QFileInfo(files.next()).path());
            QStringList parts = place.split(QLatin1Char('/'));
            if (parts.size() > deepest)
                continue;
            for (QString& part : parts)
                part = part.section(QLatin1Char('.'), 0, 0);
            m_names += parts.join(QLatin1Char('.'));
        }
    }
    m_names.removeDuplicates();
    return m_names;
}

} // namespace uiutils::check
