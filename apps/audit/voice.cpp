#include "voice.h"

#include "itemkinds.h"
#include "texts.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>

#include <algorithm>

namespace uiutils::audit {

namespace {

QString wordsOf(QAccessibleInterface* face)
{
    QStringList words {
            face->text(QAccessible::Name), face->text(QAccessible::Description), face->text(QAccessible::Value)};
    if (QAccessibleTextInterface* const text = face->textInterface())
        words += text->text(0, text->characterCount());
    if (QAccessibleValueInterface* const value = face->valueInterface())
        words += value->currentValue().toString();
    return words.join(QLatin1Char(' ')).simplified();
}

void collect(QAccessibleInterface* face, QStringList& said)
{
    if (!face || !face->isValid() || face->state().invisible)
        return;
    said += wordsOf(face);
    for (int i = 0; i < face->childCount(); ++i)
        collect(face->child(i), said);
}

// An "i" in a circle is a sign.
bool hasWords(const QString& text)
{
    if (text.size() == 1 && text.at(0).unicode() < 0x80 && text.at(0).isLetter())
        return false;
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetterOrNumber(); });
}

// A switch says its state, which is no text.
bool isState(const QQuickItem* text)
{
    for (const QQuickItem* item = text; item; item = item->parentItem()) {
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item));
        if (face && (face->state().checkable || face->role() == QAccessible::CheckBox))
            return true;
    }
    return false;
}

// "3" is not said by "30".
bool isSaid(const QString& text, const QStringList& said)
{
    const QRegularExpression whole(QStringLiteral("(?<![\\w])%1(?![\\w])").arg(QRegularExpression::escape(text)),
            QRegularExpression::UseUnicodePropertiesOption);
    return std::any_of(said.begin(), said.end(), [&whole](const QString& words) { return words.contains(whole); });
}

} // namespace

QStringList unsaidWords(QQuickWindow* window, const Scene& scene)
{
    QStringList said;
    collect(QAccessible::queryAccessibleInterface(window), said);
    QStringList complaints;
    for (const Shown& text : scene.texts) {
        const QString words = text.item->property("text").toString().simplified();
        if (!isEditor(text.item) && hasWords(words) && !isSaid(words, said) && !isState(text.item))
            complaints += Texts::tr("Voice: %1: no screen reader says it").arg(nameOf(text.item));
    }
    return complaints;
}

} // namespace uiutils::audit
