#pragma once

#include "check/finding.h"
#include "check/pages/pagefile.h"
#include "check/pages/pageitems.h"
#include "check/pages/pagescope.h"
#include "check/pages/qmlmodules.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace uiutils::check {

/// Pages with the files that they use, each once.
class PageSet
{
public:
    PageSet(const QStringList& importFolders, const PageItems& items, QVector<Finding>* findings);

    /// Reads a page and all files that it uses, and says what is not there.
    void add(const QString& page);

    const std::vector<std::unique_ptr<PageFile>>& files() const { return m_files; }
    const FileImports& importsOf(const PageFile& file) const { return m_imports.find(&file).value(); }
    QStringList importFolders() const { return m_modules.folders(); }

private:
    void enqueue(const QString& path);
    void readFile(const QString& path);
    void readImports(const PageFile& file, FileImports* imports);
    void readModule(const PageFile& file, const QQmlJS::AST::UiImport& import, FileImports* imports);
    void readFileImport(const PageFile& file, const QQmlJS::AST::UiImport& import, FileImports* imports);
    void takeModule(const QmlModule& module, const QString& prefix, FileImports* imports);
    void takeFolder(const QString& folder, const QString& prefix, FileImports* imports);
    void takeResources(const QString& folder, const QString& prefix, FileImports* imports);
    void readUses(const PageFile& file, FileImports* imports);
    void reportModule(const PageFile& file, const QQmlJS::AST::UiImport& import, const QString& name);
    void reportVersion(const PageFile& file, const QQmlJS::AST::UiImport& import, const QString& name,
            const QStringList& versions);

    const PageItems& m_items;
    QVector<Finding>* const m_findings;
    QmlModules m_modules;
    std::vector<std::unique_ptr<PageFile>> m_files;
    QHash<const PageFile*, FileImports> m_imports;
    QStringList m_waiting;
    /// As the file system knows them, so that a link is no second file.
    QSet<QString> m_known;
    QSet<QString> m_missingModules;
};

} // namespace uiutils::check
