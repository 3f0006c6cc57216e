#include "check/services/applicabilitycheck.h"

#include "check/services/jsonwords.h"

#include "service/applicability_p.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace uiutils::check {

namespace {

/// A setting with an expression, and the settings that it reads.
struct Reader
{
    NamedItem self;
    QVector<QString> reads;
};

/// The names of items in an expression that has been translated for QML, with what follows them.
QVector<QString> itemNames(QString expression)
{
    static const QRegularExpression texts(QStringLiteral(R"("(?:[^"\\]|\\.)*"|'(?:[^'\\]|\\.)*')"));
    static const QRegularExpression names(QStringLiteral(R"((?<![\w$.])[\w$]+_(?:cfg|res|act)_[\w$]+)"),
            QRegularExpression::UseUnicodePropertiesOption);
    expression.replace(texts, QStringLiteral("\"\""));
    QVector<QString> found;
    for (auto it = names.globalMatch(expression); it.hasNext();) {
        const QString name = it.next().captured();
        if (!found.contains(name))
            found += name;
    }
    return found;
}

/// "cfg.mode" for "optical_cfg_mode" in a file of that service, "other.cfg.mode" else.
QString asInExpressions(const QString& name, const QString& ownTag)
{
    for (const QString& kind : {QStringLiteral("cfg"), QStringLiteral("res")}) {
        const int at = name.indexOf(QLatin1Char('_') + kind + QLatin1Char('_'));
        if (at <= 0)
            continue;
        const QString item = kind + QLatin1Char('.') + name.mid(at + 5);
        return name.left(at) == ownTag ? item : name.left(at) + QLatin1Char('.') + item;
    }
    return name;
}

class ApplicabilityCheck
{
public:
    ApplicabilityCheck(const Documents& documents, const ServiceNames& names)
        : m_documents(documents)
        , m_names(names)
    {
    }

    void run();

private:
    void check(ServiceDocument* document, const ServiceItem& item, const JsonNode& expression);
    void checkName(ServiceDocument* document, const JsonNode& expression, const QString& name);
    void checkComparisons(ServiceDocument* document, const JsonNode& expression, const QString& translated);
    void checkElements(ServiceDocument* document, const JsonNode& expression, const QString& translated);
    void checkCircles();
    void followFrom(const QString& name);
    void tellCircle(const QVector<QString>& path, const QString& end);

    const Documents& m_documents;
    const ServiceNames& m_names;
    QHash<QString, Reader> m_readers;
    QStringList m_order;
    /// Names from which every path has been followed.
    QSet<QString> m_done;
};

void ApplicabilityCheck::run()
{
    for (const auto& document : m_documents) {
        for (const ServiceItem& item : qAsConst(document->items)) {
            const JsonNode* expression = item.node->member("applicable");
            if (expression && expression->isText())
                check(document.get(), item, *expression);
        }
    }
    checkCircles();
}

void ApplicabilityCheck::check(ServiceDocument* document, const ServiceItem& item, const JsonNode& expression)
{
    const QString tag = names::tagOf(document->description.service);
    if (expression.text.trimmed().isEmpty())
        return document->findings.warn(
                expression, QStringLiteral("\"applicable\" is an empty text: remove it, or write true."));
    QString problem;
    const std::optional<QString> translated = translatedApplicability(expression.text, tag, &problem);
    if (!translated)
        return document->findings.error(expression,
                QStringLiteral(
                        "The expression %1 cannot be read, so that the item would never be applicable: %2. Write it like "
                        "\"cfg.mode == 2 && res.state != 'idle'\".")
                                .arg(quoted(expression.text), problem)
                        + (problem.startsWith(QLatin1String("\"= ")) ? QStringLiteral(" Two equal signs compare.")
                                                                     : QString()));
    const QVector<QString> names = itemNames(*translated);
    for (const QString& name : names)
        checkName(document, expression, name);
    checkComparisons(document, expression, *translated);
    checkElements(document, expression, *translated);
    if (!item.facts.isSetting() || m_readers.contains(item.facts.contextName()))
        return;
    // A result changes whether it is applicable or not, and so ends every circle.
    QVector<QString> settings;
    for (const QString& name : names) {
        const NamedItem read = m_names.item(name);
        if (read.item && read.item->facts.isSetting())
            settings += name;
    }
    m_readers.insert(item.facts.contextName(), {{document, &item}, settings});
    m_order += item.facts.contextName();
}

void ApplicabilityCheck::checkName(ServiceDocument* document, const JsonNode& expression, const QString& name)
{
    if (m_names.item(name).item)
        return;
    const QString ownTag = names::tagOf(document->description.service);
    const QString written = asInExpressions(name, ownTag);
    const QString tag = name.left(std::max(name.indexOf(QRegularExpression(QStringLiteral("_(cfg|res|act)_"))), 0));
    if (m_names.hasTag(tag))
        return document->findings.error(expression,
                QStringLiteral("There is no item %1, so that the item would never be applicable.").arg(written)
                        + m_names.proposalFor(name, ownTag));
    document->findings.warn(expression,
            QStringLiteral("None of the files checked describes the service %1, whose item %2 this expression reads.")
                            .arg(quoted(tag), written)
                    + m_names.proposalFor(name, ownTag));
}

/// A comparison with what the item never is.
void ApplicabilityCheck::checkComparisons(
        ServiceDocument* document, const JsonNode& expression, const QString& translated)
{
    static const QRegularExpression comparison(
            QStringLiteral(
                    R"((?<![\w$.])([\w$]+_(?:cfg|res)_[\w$]+)\.value\s*[=!]==?\s*(-?\s*\d+(?![\w.])|"[^"]*"|'[^']*'))"),
            QRegularExpression::UseUnicodePropertiesOption);
    const QString ownTag = names::tagOf(document->description.service);
    for (auto it = comparison.globalMatch(translated); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const ServiceItem* item = m_names.item(match.captured(1)).item;
        if (!item || !item->description.isEnumeration || item->description.choices.isEmpty())
            continue;
        const QString constant = match.captured(2).remove(QLatin1Char(' '));
        const auto& choices = item->description.choices;
        const bool isKnown = std::any_of(choices.cbegin(), choices.cend(),
                [&constant](const auto& choice) { return QString::number(choice.value) == constant; });
        QStringList words;
        const auto named = choices.mid(0, 8);
        for (const auto& choice : named)
            words += QStringLiteral("%1 (%2)").arg(choice.value).arg(choice.name);
        if (!isKnown)
            document->findings.warn(expression,
                    QStringLiteral("%1 is never %2. It has the values %3.")
                            .arg(asInExpressions(match.captured(1), ownTag), constant,
                                    words.join(QLatin1String(", "))));
    }
}

/// An element that the list of the file has not.
void ApplicabilityCheck::checkElements(ServiceDocument* document, const JsonNode& expression, const QString& translated)
{
    static const QRegularExpression element(
            QStringLiteral(
                    R"((?<![\w$.])([\w$]+_(?:cfg|res)_[\w$]+)\.(?:value\s*\[\s*|(?:at|variantAt|getArrayValue)\s*\(\s*)(\d+)\s*[\])])"),
            QRegularExpression::UseUnicodePropertiesOption);
    const QString ownTag = names::tagOf(document->description.service);
    for (auto it = element.globalMatch(translated); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const ServiceItem* item = m_names.item(match.captured(1)).item;
        const JsonNode* value = item ? item->node->member("value") : nullptr;
        if (!value || !value->isList() || match.captured(2).toULongLong() < value->children.size())
            continue;
        document->findings.warn(expression,
                QStringLiteral("%1 has %2 elements in the file, counted from 0, so that there is no element %3.")
                        .arg(asInExpressions(match.captured(1), ownTag), QString::number(value->children.size()),
                                match.captured(2)));
    }
}

void ApplicabilityCheck::checkCircles()
{
    for (const QString& name : qAsConst(m_order))
        followFrom(name);
}

/// Depth first, without recursion: a chain may be as long as a file.
void ApplicabilityCheck::followFrom(const QString& start)
{
    if (m_done.contains(start))
        return;
    QVector<QString> path {start};
    QVector<int> next {0};
    QSet<QString> onPath {start};
    while (!path.isEmpty()) {
        const auto reader = m_readers.constFind(path.constLast());
        const int at = next.last()++;
        if (reader == m_readers.cend() || at >= reader->reads.size()) {
            m_done.insert(path.constLast());
            onPath.remove(path.takeLast());
            next.removeLast();
            continue;
        }
        const QString name = reader->reads.at(at);
        if (onPath.contains(name)) {
            tellCircle(path, name);
        } else if (!m_done.contains(name)) {
            path.append(name);
            next.append(0);
            onPath.insert(name);
        }
    }
}

void ApplicabilityCheck::tellCircle(const QVector<QString>& path, const QString& end)
{
    constexpr int mostShown = 10;
    const NamedItem last = m_readers.value(path.constLast()).self;
    const JsonNode& place = last.item->part("applicable");
    if (path.constLast() == end)
        return last.document->findings.error(place,
                QStringLiteral(
                        "The expression reads the item itself: once it says no, no user can set the item, and it stays so."));
    QStringList circle;
    for (int i = path.indexOf(end); i < path.size() && circle.size() < mostShown; ++i)
        circle += path.at(i);
    circle += circle.size() < mostShown ? end : QString(QChar(0x2026));
    last.document->findings.error(place,
            QStringLiteral(
                    "Whether the item is applicable depends on itself in a circle: %1. Once none is applicable, no user can change that.")
                    .arg(circle.join(QLatin1String(" reads "))));
}

} // namespace

void checkApplicability(const Documents& documents, const ServiceNames& names)
{
    ApplicabilityCheck(documents, names).run();
}

} // namespace uiutils::check
