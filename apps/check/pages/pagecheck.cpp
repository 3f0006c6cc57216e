#include "check/pages/pagecheck.h"

#include "check/pages/lint.h"
#include "check/pages/namerules.h"
#include "check/pages/objectrules.h"
#include "check/pages/pageset.h"
#include "check/pages/typerules.h"
#include "check/pages/userules.h"

#include <algorithm>
#include <iterator>

namespace uiutils::check {

namespace {

template<typename Rules> void apply(const PageScope& scope, QVector<Finding>* findings)
{
    Rules rules(scope, findings);
    scope.file.root()->accept(&rules);
}

void judge(const PageScope& scope, QVector<Finding>* findings)
{
    NameRules names(scope, findings);
    scope.file.root()->accept(&names);
    apply<UseRules>(scope, findings);
    apply<ObjectRules>(scope, findings);
    apply<TypeRules>(scope, findings);
    if (!names.isCut())
        return;
    findings->append({Finding::Warning, scope.file.path(), names.cutLine(), 0, QString(),
            QStringLiteral("This is nested more than %1 levels deep. What is inside was not checked.")
                    .arg(ShallowVisitor::deepest)});
}

/// What Qt's checker finds besides: of two findings at one place, ours says more.
void lintAll(const PageSet& set, const PageNames& names, const PageItems& items, const QStringList& pages,
        QVector<Finding>* findings)
{
    const QString program = lintProgram();
    if (program.isEmpty() && !pages.isEmpty())
        findings->append({Finding::Warning, pages.constFirst(), 0, 0, QString(),
                QStringLiteral("qmllint is not installed, so less was checked. Debian has it in the package "
                               "qtdeclarative5-dev-tools.")});
    const QVector<Finding> own = *findings;
    for (const auto& file : set.files()) {
        if (program.isEmpty() || !file->page())
            continue;
        const QVector<Finding> more = lint(program, {*file, names, items, set.importsOf(*file)}, set.importFolders(),
                pages.contains(file->path()));
        std::copy_if(more.cbegin(), more.cend(), std::back_inserter(*findings), [&own](const Finding& finding) {
            return std::none_of(own.cbegin(), own.cend(), [&finding](const Finding& known) {
                return known.file == finding.file && known.line == finding.line && known.column == finding.column;
            });
        });
    }
}

} // namespace

QVector<Finding> checkPages(const QStringList& pages, const PageCheck& surroundings)
{
    QVector<Finding> findings;
    const PageItems items(surroundings.items);
    PageSet set(surroundings.importFolders, items, &findings);
    for (const QString& page : pages)
        set.add(page);
    PageNames names;
    for (const auto& file : set.files())
        names.read(*file);
    for (const auto& file : set.files()) {
        if (file->root())
            judge({*file, names, items, set.importsOf(*file)}, &findings);
    }
    lintAll(set, names, items, pages, &findings);
    sort(&findings);
    return findings;
}

} // namespace uiutils::check
