// The part of KivData that says whether the item has a meaning now.

#include "service/kivdata_p.h"

#include "service/applicability_p.h"
#include "service/itemregistry_p.h"
#include "service/manifeststate_p.h"

#include <QQmlContext>
#include <QQmlExpression>

#include <cstdio>

using uiutils::KivDataPrivate;

bool KivData::isApplicable()
{
    if (!d->item)
        return true;
    const QString expression = d->item->getApplicableExpr();
    if (expression.isEmpty())
        return d->item->isApplicable();
    d->compileApplicability(expression);
    if (getId().startsWith(QLatin1String(":action:")))
        return true;
    if (d->isExpressionRejected)
        return false;
    return !d->expression || d->evaluateApplicability();
}

void KivDataPrivate::compileApplicability(const QString& text)
{
    if (expression && !expression->context()) {
        delete expression;
        expression = nullptr;
    }
    const ManifestState* owner = manifestState(q->parent());
    QQmlContext* context = itemregistry::qmlContext();
    if (expression || isExpressionRejected || text == QLatin1String("true") || !owner || !context)
        return;

    QString problem;
    const std::optional<QString> translated = uiutils::translatedApplicability(text, owner->qmlTag, &problem);
    if (!translated) {
        isExpressionRejected = true;
        reportExpressionError(problem);
        return;
    }
    expression = new QQmlExpression(context, q, *translated, q);
    QObject::connect(expression, &QQmlExpression::valueChanged, q, &KivData::slotApplicChanged);
    expression->setNotifyOnValueChanged(true);
}

bool KivDataPrivate::evaluateApplicability()
{
    const bool result = expression->evaluate().toBool();
    if (!expression->hasError())
        return result;
    reportExpressionError(expression->error().toString());
    expression->clearError();
    return false;
}

void KivDataPrivate::reportExpressionError(const QString& problem) const
{
    std::printf("Applicable expression error: %s %s\n", qPrintable(q->getName()), qPrintable(problem));
    std::fflush(stdout);
}
