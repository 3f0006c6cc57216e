#include "service/forgivingvalidator.h"

ForgivingValidator::ForgivingValidator(QObject* parent)
    : QRegularExpressionValidator(parent)
{
}

ForgivingValidator::ForgivingValidator(const QRegularExpression& expression, QObject* parent)
    : QRegularExpressionValidator(expression, parent)
{
}

ForgivingValidator::~ForgivingValidator() = default;

ForgivingValidator::ValidatorState ForgivingValidator::validate(QString input, int pos)
{
    const bool isEmpty = input.isEmpty();
    const QValidator::State state = QRegularExpressionValidator::validate(input, pos);
    if (state == QValidator::Acceptable)
        return Acceptable;
    return isEmpty || state == QValidator::Intermediate ? Intermediate : Invalid;
}
