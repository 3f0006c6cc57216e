#include "modules/moduletexts.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace uiutils::modules {

using names::ItemFacts;

const QLatin1String mark("Made by uiutils-describe, which replaces this file.");

namespace {

constexpr int longestText = 200;
constexpr int mostChoices = 20;

/// One line of a comment, whatever the service says.
QString plain(const QString& text)
{
    QString line = text;
    for (QChar& character : line) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char(' ');
    }
    line = line.simplified();
    return line.size() > longestText ? line.left(longestText) + QChar(0x2026) : line;
}

QString numberText(const QVariant& number)
{
    return number.type() == QVariant::Double ? QString::number(number.toDouble(), 'g', QLocale::FloatingPointShortest)
                                             : number.toString();
}

QString rangeOf(const ItemFacts& item)
{
    const QString unit = item.type == QLatin1String("std::string") ? QStringLiteral(" characters")
            : item.unit.isEmpty()                                  ? QString()
                                                                   : QLatin1Char(' ') + plain(item.unit);
    const bool hasMinimum = item.minimum.isValid();
    const bool hasMaximum = item.maximum.isValid();
    if (hasMinimum && hasMaximum)
        return numberText(item.minimum) + QStringLiteral(" to ") + numberText(item.maximum) + unit;
    if (hasMinimum)
        return QStringLiteral("at least ") + numberText(item.minimum) + unit;
    if (hasMaximum)
        return QStringLiteral("at most ") + numberText(item.maximum) + unit;
    return item.unit.isEmpty() ? QString() : QStringLiteral("in ") + plain(item.unit);
}

QString choicesOf(const ItemFacts& item)
{
    QStringList texts;
    for (int i = 0; i < std::min(item.choices.size(), mostChoices); ++i)
        texts += QStringLiteral("%1 (%2)").arg(
                plain(item.choices.at(i).label), QString::number(item.choices.at(i).value));
    if (item.choices.size() > mostChoices)
        texts += QStringLiteral("and %1 more").arg(item.choices.size() - mostChoices);
    return texts.join(QStringLiteral(", "));
}

/// What people call a type.
QString typeWords(const ItemFacts& item)
{
    static const QHash<QString, QString> words {{QStringLiteral("std::string"), QStringLiteral("a text")},
            {QStringLiteral("bool"), QStringLiteral("true or false")},
            {QStringLiteral("int"), QStringLiteral("a whole number")},
            {QStringLiteral("uint"), QStringLiteral("a whole number from 0")},
            {QStringLiteral("double"), QStringLiteral("a number")},
            {QStringLiteral("std::vector<string>"), QStringLiteral("a list of texts")},
            {QStringLiteral("std::vector<double>"), QStringLiteral("a list of numbers")}};
    if (item.isEnumeration)
        return QStringLiteral("one of");
    if (item.kind == ItemFacts::Aggregate)
        return QStringLiteral("an aggregate");
    return item.kind == ItemFacts::Table ? QStringLiteral("a table") : words.value(item.type, plain(item.type));
}

QString kindOf(const ItemFacts& item)
{
    if (item.isAction())
        return QStringLiteral("Action");
    return (item.isSetting() ? QStringLiteral("Setting, ") : QStringLiteral("Result, read-only, ")) + typeWords(item);
}

/// The lines above the property of an item.
QStringList documentationOf(const ItemFacts& item)
{
    QStringList lines {plain(item.label.isEmpty() ? item.name : item.label)};
    QString facts = kindOf(item);
    const QString limits = item.isEnumeration ? choicesOf(item) : rangeOf(item);
    if (!limits.isEmpty())
        facts += (item.isEnumeration ? QStringLiteral(" ") : QStringLiteral(", ")) + limits;
    lines += facts;
    lines += plain(item.id);
    return lines;
}

/// Also of aggregates and tables, whose classes have nothing to add: qmllint crashes over members of a value whose type
/// it does not know, where a class inherits the value.
const QLatin1String wrapperType("KivData");

QString marked(const char* comment)
{
    return QLatin1String(comment) + QLatin1Char(' ') + mark + QLatin1Char('\n');
}

} // namespace

QByteArray directoryText(const Module& module, const QString& import)
{
    return (marked("#")
            + QStringLiteral("module %1\n"
                             "singleton %2 1.0 %2.qml\n"
                             "typeinfo plugins.qmltypes\n"
                             "depends UiUtils 1.0\n")
                      .arg(import, module.name))
            .toUtf8();
}

QByteArray singletonText(const Module& module)
{
    QString text = marked("//");
    text += QStringLiteral("pragma Singleton\n"
                           "import UiUtils 1.0\n\n"
                           "ServiceItems {\n"
                           "    tag: \"%1\"\n")
                    .arg(module.tag);
    for (const Member& member : module.members) {
        text += QLatin1Char('\n');
        const QStringList lines = documentationOf(member.facts);
        for (const QString& line : lines)
            text += QStringLiteral("    /// ") + line + QLatin1Char('\n');
        text += QStringLiteral("    readonly property %1 %2: null\n")
                        .arg(wrapperType, member.facts.memberName);
        for (const Constant& constant : member.constants)
            text += QStringLiteral("    readonly property int %1: %2 // %3\n")
                            .arg(constant.name, QString::number(constant.value), plain(constant.label));
    }
    text += QStringLiteral("}\n");
    return text.toUtf8();
}

QByteArray typesText(const Module& module, const QString& import)
{
    QString text = QStringLiteral("import QtQuick.tooling 1.2\n\n");
    text.prepend(marked("//"));
    text += QStringLiteral("Module {\n"
                           "    dependencies: [\"UiUtils 1.0\"]\n"
                           "    Component {\n"
                           "        name: \"%2\"\n"
                           "        prototype: \"uiutils::ServiceItems\"\n"
                           "        exports: [\"%1/%2 1.0\"]\n"
                           "        exportMetaObjectRevisions: [0]\n"
                           "        isComposite: true\n"
                           "        isCreatable: false\n"
                           "        isSingleton: true\n")
                    .arg(import, module.name);
    const QString pointer = QStringLiteral("        Property { name: \"%1\"; type: \"%2\"; isReadonly: true; "
                                           "isPointer: true }\n");
    const QString number = QStringLiteral("        Property { name: \"%1\"; type: \"int\"; isReadonly: true }\n");
    for (const Member& member : module.members) {
        text += pointer.arg(member.facts.memberName, wrapperType);
        for (const Constant& constant : member.constants)
            text += number.arg(constant.name);
    }
    text += QStringLiteral("    }\n}\n");
    return text.toUtf8();
}

} // namespace uiutils::modules
