#include "check/pages/pageset.h"

#include "check/pages/expressions.h"
#include "check/pages/shallowvisitor.h"
#include "check/wording.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

/// More is no application that somebody checks, but a folder that was named by mistake.
constexpr int mostFiles = 5000;

/// The types that a file uses, and the other files that it names.
class UseReader : public ShallowVisitor
{
public:
    struct Use
    {
        QString name;
        QQmlJS::SourceLocation place;
        /// Whether the file is what a loader loads.
        bool isSource = false;
    };

    QVector<Use> types;
    QVector<Use> files;

protected:
    bool visit(UiObjectDefinition* object) override
    {
        enterType(object->qualifiedTypeNameId);
        return true;
    }
    bool visit(UiObjectBinding* object) override
    {
        enterType(object->qualifiedTypeNameId);
        return true;
    }
    bool visit(UiScriptBinding* binding) override
    {
        if (toText(binding->qualifiedId) == QLatin1String("source"))
            m_source = expressionOf(binding->statement);
        return true;
    }
    bool visit(StringLiteral* text) override
    {
        const QString name = text->value.toString();
        if (name.endsWith(QLatin1String(".qml")) && !name.contains(QLatin1Char(':')))
            files.append({name, text->literalToken, text == m_source});
        return true;
    }

private:
    void enterType(const UiQualifiedId* id)
    {
        const QString name = toText(id);
        if (lastName(id).at(0).isUpper())
            types.append({name, id->identifierToken, false});
    }

    ExpressionNode* m_source = nullptr;
};

QString inFolder(const QString& folder, const QString& name)
{
    return QDir::isAbsolutePath(name) ? name : QDir::cleanPath(folder + QLatin1Char('/') + name);
}

QString versionOf(const UiImport& import)
{
    return import.version ? QStringLiteral("%1.%2").arg(import.version->majorVersion).arg(import.version->minorVersion)
                          : QString();
}

QString prefixOf(const UiImport& import)
{
    return import.importId.isEmpty() ? QString() : import.importId + QLatin1Char('.');
}

} // namespace

PageSet::PageSet(const QStringList& importFolders, const PageItems& items, QVector<Finding>* findings)
    : m_items(items)
    , m_findings(findings)
    , m_modules(importFolders)
{
}

void PageSet::add(const QString& page)
{
    enqueue(page);
    while (!m_waiting.isEmpty() && int(m_files.size()) < mostFiles)
        readFile(m_waiting.takeFirst());
}

void PageSet::enqueue(const QString& path)
{
    const QString place = QFileInfo(path).canonicalFilePath();
    const QString known = place.isEmpty() ? path : place;
    if (!m_known.contains(known)) {
        m_known.insert(known);
        m_waiting += path;
    }
}

void PageSet::readFile(const QString& path)
{
    std::unique_ptr<PageFile> file = PageFile::read(path, m_findings);
    if (!file)
        return;
    FileImports imports;
    imports.isComplete = true;
    imports.types = builtInTypes();
    if (file->page()) {
        takeFolder(file->folder(), QString(), &imports);
        readImports(*file, &imports);
    }
    if (file->root())
        readUses(*file, &imports);
    m_imports.insert(file.get(), imports);
    m_files.push_back(std::move(file));
}

void PageSet::readImports(const PageFile& file, FileImports* imports)
{
    for (UiHeaderItemList* header = file.page()->headers; header; header = header->next) {
        const auto* const import = cast<UiImport*>(header->headerItem);
        if (import && import->importUri)
            readModule(file, *import, imports);
        else if (import)
            readFileImport(file, *import, imports);
    }
}

void PageSet::readModule(const PageFile& file, const UiImport& import, FileImports* imports)
{
    const QString name = toText(import.importUri);
    const QString prefix = prefixOf(import);
    if (!import.version) {
        imports->isComplete = false;
        m_findings->append(file.at(import.importUri->identifierToken,
                QStringLiteral("The import needs a version, as in \"import %1 %2\".")
                        .arg(name,
                                name == QLatin1String("QtQuick") || name.startsWith(QLatin1String("QtQuick.Controls"))
                                        ? QStringLiteral("2.15")
                                        : QStringLiteral("1.0"))));
        return;
    }
    const QString last = name.section(QLatin1Char('.'), -1);
    const QString tag = m_items.tagOfModule(last);
    const QmlModule* const module = m_modules.find(name, versionOf(import));
    if (!tag.isEmpty() && (module ? module->singletons.contains(last) : name.contains(QLatin1Char('.'))))
        imports->singletons.insert(prefix + last, tag);
    if (!prefix.isEmpty()
            && (name == QLatin1String("QtQuick") || name.section(QLatin1Char('.'), 0, 0) == QLatin1String("QtQml"))) {
        for (const QString& type : builtInTypes())
            imports->types.insert(prefix + type);
    }
    if (name == QLatin1String("UiUtils.Controls")) {
        imports->hasKit = true;
        imports->kitPrefix = prefix;
    }
    const QString major = QString::number(import.version->majorVersion);
    if (module && !module->versions.isEmpty() && !module->versions.contains(major)) {
        imports->isComplete = false;
        reportVersion(file, import, name, module->versions.values());
    } else if (module) {
        takeModule(*module, prefix, imports);
        // A file of the module itself uses what the module keeps to itself.
        if (module->files.contains(QFileInfo(file.path()).completeBaseName()))
            imports->isComplete = false;
    } else if (imports->singletons.contains(prefix + last)) {
        imports->types.insert(prefix + last);
    } else if (name != QLatin1String("QtQml")) {
        imports->isComplete = false;
        reportModule(file, import, name);
    }
}

void PageSet::reportVersion(
        const PageFile& file, const UiImport& import, const QString& name, const QStringList& versions)
{
    m_findings->append(file.at(import.importUri->identifierToken,
            QStringLiteral("The module %1 has no version %2.%3")
                    .arg(name, versionOf(import),
                            versions.isEmpty()
                                    ? QString()
                                    : QStringLiteral(" Its versions begin with %1.").arg(enumeration(versions)))));
}

void PageSet::reportModule(const PageFile& file, const UiImport& import, const QString& name)
{
    const QString ofServices = QStringLiteral("Instrument.");
    if (name.startsWith(ofServices) && !m_items.isEmpty()) {
        QStringList modules = m_items.moduleNames();
        for (QString& module : modules)
            module.prepend(ofServices);
        const QString proposed = proposal(name, modules);
        m_findings->append(file.at(import.importUri->identifierToken,
                QStringLiteral("No service has the module %1.%2")
                        .arg(name,
                                proposed.isEmpty() ? QStringLiteral(" The modules are %1.").arg(enumeration(modules))
                                                   : proposed)));
        return;
    }
    const QStringList& known = m_modules.names();
    if (known.contains(name))
        return reportVersion(file, import, name, {});
    const bool isMistake = std::any_of(known.cbegin(), known.cend(), [&name](const QString& other) {
        return isSlip(name, other) || name.compare(other, Qt::CaseInsensitive) == 0;
    });
    const QString advice = isMistake
            ? proposal(name, known)
            : QStringLiteral(" Name the folder above it with --import, or install it. A module that the program itself "
                             "brings along cannot be found here.");
    // All files of a program import the modules that it brings along: one line tells it.
    if (!isMistake && m_missingModules.contains(name))
        return;
    m_missingModules.insert(name);
    Finding finding = file.at(
            import.importUri->identifierToken, QStringLiteral("The module %1 was not found.%2").arg(name, advice));
    if (!isMistake)
        finding.weight = Finding::Warning;
    m_findings->append(finding);
}

void PageSet::readFileImport(const PageFile& file, const UiImport& import, FileImports* imports)
{
    const QString name = import.fileName.toString();
    if (name.contains(QLatin1Char(':'))) {
        imports->isComplete = false;
        return;
    }
    const QString path = inFolder(file.folder(), name);
    const QFileInfo place(path);
    if (!place.exists()) {
        imports->isComplete = false;
        const QStringList beside = QDir(place.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        m_findings->append(file.at(import.fileNameToken,
                QStringLiteral("There is no file or folder \"%1\" beside this file.%2")
                        .arg(name, proposal(place.fileName(), beside))));
    } else if (place.isDir()) {
        takeFolder(path, prefixOf(import), imports);
    } else {
        enqueue(path);
    }
}

void PageSet::takeModule(const QmlModule& module, const QString& prefix, FileImports* imports)
{
    for (const QString& type : module.types)
        imports->types.insert(prefix + type);
    imports->properties += module.properties;
    imports->isComplete = imports->isComplete && module.isComplete;
    if (!module.isOfUser)
        return;
    for (auto file = module.files.cbegin(); file != module.files.cend(); ++file)
        imports->files.insert(prefix + file.key(), file.value());
}

void PageSet::takeFolder(const QString& folder, const QString& prefix, FileImports* imports)
{
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.qml")}, QDir::Files);
    for (const QString& name : names) {
        const QString type = name.chopped(4);
        if (!type.at(0).isUpper())
            continue;
        imports->types.insert(prefix + type);
        imports->ownTypes.insert(prefix + type);
        imports->files.insert(prefix + type, inFolder(folder, name));
    }
    takeResources(folder, prefix, imports);
}

/// A program whose resources are listed here may have files of other folders beside the page.
void PageSet::takeResources(const QString& folder, const QString& prefix, FileImports* imports)
{
    const QStringList lists = QDir(folder).entryList({QStringLiteral("*.qrc")}, QDir::Files);
    for (const QString& list : lists) {
        QFile file(inFolder(folder, list));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QXmlStreamReader xml(&file);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("file"))
                continue;
            const QString alias = xml.attributes().value(QLatin1String("alias")).toString();
            const QString name = xml.readElementText(QXmlStreamReader::SkipChildElements);
            const QString type = prefix + QFileInfo(alias.isEmpty() ? name : alias).completeBaseName();
            if (!name.endsWith(QLatin1String(".qml")) || imports->types.contains(type))
                continue;
            imports->types.insert(type);
            imports->ownTypes.insert(type);
            imports->files.insert(type, inFolder(folder, name));
        }
    }
}

void PageSet::readUses(const PageFile& file, FileImports* imports)
{
    UseReader reader;
    file.root()->accept(&reader);
    for (const UseReader::Use& type : qAsConst(reader.types)) {
        const QString component = imports->files.value(type.name);
        if (!component.isEmpty())
            enqueue(component);
        const bool isMissing = imports->isComplete && !imports->types.contains(type.name);
        if (isMissing && !type.name.contains(QLatin1Char('.')) && !imports->homes.contains(type.name))
            imports->homes.insert(type.name, m_modules.moduleWith(type.name));
    }
    for (const UseReader::Use& use : qAsConst(reader.files)) {
        const QString path = inFolder(file.folder(), use.name);
        if (QFileInfo(path).isFile()) {
            enqueue(path);
        } else if (use.isSource) {
            const QStringList beside = QDir(QFileInfo(path).path()).entryList({QStringLiteral("*.qml")}, QDir::Files);
            Finding finding = file.at(use.place,
                    QStringLiteral("There is no file \"%1\" beside this file.%2")
                            .arg(use.name, proposal(use.name, beside)));
            finding.weight = Finding::Warning;
            m_findings->append(finding);
        }
    }
}

} // namespace uiutils::check
