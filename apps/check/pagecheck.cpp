#include "check/pagecheck.h"

#include "check/namerules.h"
#include "check/objectrules.h"
#include "check/pageset.h"
#include "check/typerules.h"
#include "check/userules.h"

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
    sort(&findings);
    return findings;
}

} // namespace uiutils::check
