#include "modules/moduleplan.h"

#include "names/qmlname.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace uiutils::modules {

using names::Choice;
using names::ItemFacts;

namespace {

constexpr int mostNamed = 3;
/// QML numbers properties and their notifiers in 16 bits, and QObject's come first.
constexpr int mostProperties = 16 * 1000;

/// The choices that QML can spell; an item of the same name has precedence.
QVector<Constant> constantsOf(const ItemFacts& item, const QMap<QString, ItemFacts>& others)
{
    QVector<Constant> constants;
    QSet<QString> known;
    for (const Choice& choice : item.choices) {
        const QString name = item.memberName + QLatin1Char('_') + choice.name;
        if (choice.name.isEmpty() || !names::isQmlName(name) || others.contains(name) || known.contains(name))
            continue;
        known.insert(name);
        constants.append({name, choice.value, choice.label});
    }
    return constants;
}

QString listed(const QStringList& all)
{
    const QString some = all.mid(0, mostNamed).join(QLatin1String(", "));
    return all.size() > mostNamed ? some + QStringLiteral(" and %1 more").arg(all.size() - mostNamed) : some;
}

/// The items of a tag, as they are sorted into properties.
struct Sorted
{
    QStringList services;
    /// By the names of the properties.
    QMap<QString, ItemFacts> members;
    QStringList unspellable;
    QStringList displaced;
};

void sort(const ItemFacts& item, Sorted* sorted)
{
    if (!sorted->services.contains(item.service))
        sorted->services.append(item.service);
    // Pages find such an item under no name at all.
    if (item.memberName.isEmpty())
        return;
    if (!names::isQmlName(item.memberName)) {
        sorted->unspellable.append(item.id);
        return;
    }
    if (sorted->members.contains(item.memberName))
        sorted->displaced.append(sorted->members.value(item.memberName).id);
    // As in the context of pages, the last one counts.
    sorted->members.insert(item.memberName, item);
}

QStringList notesOf(const QString& tag, const Sorted& sorted)
{
    QStringList notes;
    if (sorted.services.size() > 1)
        notes += QStringLiteral("The services %1 have one beginning of names, \"%2_\", and so one module.")
                         .arg(listed(sorted.services), tag);
    if (!sorted.unspellable.isEmpty())
        notes += QStringLiteral("%1: QML cannot spell the names of these items: %2. They are left out.")
                         .arg(tag, listed(sorted.unspellable));
    if (!sorted.displaced.isEmpty())
        notes += QStringLiteral("%1: Later items have the names of these: %2. They are left out.")
                         .arg(tag, listed(sorted.displaced));
    return notes;
}

} // namespace

QString moduleName(const QString& tag)
{
    static const QRegularExpression joints(QStringLiteral("[_-]+"));
    QString name;
    const QStringList words = tag.split(joints, Qt::SkipEmptyParts);
    for (const QString& word : words)
        name += word.at(0).toUpper() + word.mid(1);
    const bool isName = names::isQmlName(name) && name.at(0).isUpper();
    // What the context does not know under a name of QML, the pages of others cannot use.
    return isName && names::isQmlName(tag) ? name : QString();
}

Plan plan(const QVector<ItemFacts>& items)
{
    QMap<QString, Sorted> byTag;
    for (const ItemFacts& item : items)
        sort(item, &byTag[item.tag]);

    Plan plan;
    QMap<QString, Module> byName;
    for (auto it = byTag.cbegin(); it != byTag.cend(); ++it) {
        const QString services = it->services.join(QLatin1String(", "));
        Module module {moduleName(it.key()), it.key(), {}};
        if (module.name.isEmpty()) {
            plan.problems += QStringLiteral("%1: QML cannot spell a name that begins with \"%2\", so there is no "
                                            "module. A service's name ends in letters, digits and \"_\", a letter "
                                            "with a capital form first.")
                                     .arg(services, it.key());
            continue;
        }
        // On a disk that does not distinguish capitals, one would replace the other.
        const QString place = module.name.toLower();
        if (byName.contains(place)) {
            const Module& other = byName[place];
            plan.problems += QStringLiteral("%1: Its module would be called %2, and that of \"%3\" is called %4. Give "
                                            "one of these services another name.")
                                     .arg(services, module.name, other.tag, other.name);
            continue;
        }
        plan.notes += notesOf(it.key(), *it);
        int count = 0;
        for (const ItemFacts& item : it->members) {
            const QVector<Constant> constants = constantsOf(item, it->members);
            count += 1 + constants.size();
            if (count > mostProperties) {
                plan.problems += QStringLiteral("%1: A module has at most %2 items and choices; those from %3 on are "
                                                "left out.")
                                         .arg(services, QString::number(mostProperties), item.id);
                break;
            }
            module.members.append({item, constants});
        }
        byName.insert(place, module);
    }
    for (const Module& module : qAsConst(byName))
        plan.modules.append(module);
    return plan;
}

} // namespace uiutils::modules
