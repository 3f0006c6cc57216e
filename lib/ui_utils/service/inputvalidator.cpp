#include "service/inputvalidator_p.h"

#include "service/forgivingvalidator.h"
#include "service/wordmarks_p.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QSet>
#include <QVector>
#include <QtDebug>

#include <cmath>
#include <limits>

namespace uiutils {

namespace {

int wholeLimit(const QVariant& limit)
{
    const double number = limit.toDouble();
    if (std::isnan(number))
        return 0;
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return int(qBound(least, number, most));
}

double realLimit(const QVariant& limit)
{
    const double number = limit.toDouble();
    return std::isnan(number) ? 0 : number;
}

/// Why nothing could ever be entered; empty for an expression that can be used.
QString problemOf(const QRegularExpression& expression)
{
    // A length below zero reads as plain text.
    static const QRegularExpression negativeLength(QStringLiteral("^\\.\\{(-\\d+,-?\\d+|\\d+,-\\d+)\\}$"));
    if (!expression.isValid())
        return expression.errorString();
    if (negativeLength.match(expression.pattern()).hasMatch())
        return QStringLiteral("a length below zero");
    // A validator puts anchors around it.
    const QRegularExpression anchored(
            QRegularExpression::anchoredPattern(expression.pattern()), expression.patternOptions());
    return anchored.isValid() ? QString() : QStringLiteral("nothing may stand around it");
}

void warnOnce(const QString& pattern, const QString& reason)
{
    static QSet<QString> known;
    constexpr int mostRemembered = 1000;
    if (known.contains(pattern) || known.size() >= mostRemembered)
        return;
    known.insert(pattern);
    qWarning("The regular expression \"%s\" of an item cannot be used (%s); every text is accepted in its place.",
            qUtf8Printable(pattern.left(200)), qUtf8Printable(reason));
}

} // namespace

QString withEscapedHyphens(const QString& pattern)
{
    // A bracket expression: its first member may be a closing bracket, and named classes have brackets of their own.
    static const QRegularExpression brackets(QStringLiteral(R"(\\.|\[\^?\]?(?:\[:\^?\w+:\]|\\.|[^\]\\])*\])"),
            QRegularExpression::DotMatchesEverythingOption);
    // Other escapes are skipped completely, so that the second half of a doubled backslash starts none.
    static const QRegularExpression escapes(
            QStringLiteral(R"(\\(?:[dDwWsShHvV]|[pP]\{[^}]*\}|[pP]\w)(-(?=[^\]]))?|\\.)"),
            QRegularExpression::DotMatchesEverythingOption);

    QVector<int> hyphens;
    for (auto outer = brackets.globalMatch(pattern); outer.hasNext();) {
        const QRegularExpressionMatch bracket = outer.next();
        if (bracket.capturedView().startsWith(QLatin1Char('\\')))
            continue;
        for (auto inner = escapes.globalMatch(bracket.captured()); inner.hasNext();) {
            const QRegularExpressionMatch escape = inner.next();
            if (escape.capturedLength(1) > 0)
                hyphens.append(bracket.capturedStart() + escape.capturedStart(1));
        }
    }
    QString repaired = pattern;
    while (!hyphens.isEmpty())
        repaired.insert(hyphens.takeLast(), QLatin1Char('\\'));
    return repaired;
}

QRegularExpression inputExpression(const QString& published)
{
    const QString pattern = withWordMarks(published);
    const QRegularExpression expression(pattern, QRegularExpression::UseUnicodePropertiesOption);
    const QString problem = problemOf(expression);
    if (problem.isEmpty())
        return expression;
    const QRegularExpression repaired(withEscapedHyphens(pattern), QRegularExpression::UseUnicodePropertiesOption);
    if (problemOf(repaired).isEmpty())
        return repaired;
    warnOnce(published, problem);
    return QRegularExpression(QStringLiteral(".*"), QRegularExpression::DotMatchesEverythingOption);
}

bool applyRule(const InputRule& rule, QValidator* validator)
{
    auto* text = qobject_cast<ForgivingValidator*>(validator);
    auto* real = qobject_cast<QDoubleValidator*>(validator);
    auto* whole = qobject_cast<QIntValidator*>(validator);
    const bool isText = rule.type == textType;
    const bool isReal = rule.type == realType;
    if (isText && text) {
        text->setRegularExpression(inputExpression(rule.regex));
    } else if (isReal && real) {
        constexpr unsigned mostDecimals = std::numeric_limits<int>::max();
        real->setRange(realLimit(rule.minimum), realLimit(rule.maximum), int(qMin(rule.precision, mostDecimals)));
        real->setNotation(QDoubleValidator::StandardNotation);
    } else if (!isText && !isReal && whole) {
        whole->setRange(wholeLimit(rule.minimum), wholeLimit(rule.maximum));
    } else {
        return false;
    }
    return true;
}

InputRule openRule(QLatin1String type)
{
    constexpr double open = std::numeric_limits<double>::infinity();
    constexpr unsigned mostDecimals = 1000;
    return {type, QStringLiteral(".*"), -open, open, mostDecimals};
}

QValidator* createValidator(const InputRule& rule, QObject* parent)
{
    QValidator* validator = nullptr;
    if (rule.type == textType)
        validator = new ForgivingValidator(parent);
    else if (rule.type == realType)
        validator = new QDoubleValidator(parent);
    else
        validator = new QIntValidator(parent);
    applyRule(rule, validator);
    return validator;
}

} // namespace uiutils
