#include "report/nameproblem_p.h"

#include "files/filename_p.h"
#include "report/reportnaming_p.h"
#include "report/reporttexts_p.h"
#include "service/kivdata.h"

#include <QRegularExpression>
#include <QValidator>

namespace uiutils {

namespace {

bool isAccepted(const QValidator& validator, QString text)
{
    int position = 0;
    return validator.validate(text, position) == QValidator::Acceptable;
}

/// Most expressions are a number of characters of one kind. What is wrong can be said of them; empty for others.
QString expressionProblem(const QString& name, const KivData& item, const QValidator& validator)
{
    static const QRegularExpression ofOneKind(
            QStringLiteral("^\\^?\\[(?:\\\\.|[^\\]\\\\])*\\]\\{[01],(\\d{1,5})\\}\\$?$"));
    const QRegularExpressionMatch match = ofOneKind.match(item.getRegex());
    if (!match.hasMatch())
        return QString();
    const int count = name.toUcs4().size();
    const int most = match.captured(1).toInt();
    if (count > most)
        return nameTooLong(most, count);
    const QString strangers
            = forbiddenIn(name, [&](const QString& character) { return !isAccepted(validator, character); });
    return strangers.isEmpty() ? QString() : nameMustNotContain(strangers);
}

/// What is wrong with it as the value of the setting.
QString settingProblem(const QString& name, const KivData* item)
{
    const QValidator* const validator = item ? item->getValidator() : nullptr;
    if (name.isEmpty() || !validator || isAccepted(*validator, name))
        return QString();
    const QString problem = expressionProblem(name, *item, *validator);
    const QString general = problem.isEmpty() ? fileNameProblem(name) : problem;
    return general.isEmpty() ? ReportTexts::tr("The name does not have the required form") : general;
}

} // namespace

QString reportNameProblem(const QString& name, const KivData* item, const FormatInfos& formats, bool compressed)
{
    QString problem = settingProblem(name, item);
    // Before the general rules, because suffixes count.
    for (auto format = formats.cbegin(); problem.isEmpty() && format != formats.cend(); ++format)
        problem = nameProblem(name, (*format)->suffix, compressed);
    return problem.isEmpty() ? fileNameProblem(name) : problem;
}

} // namespace uiutils
