#pragma once

#include "core/uiutils_export.h"

#include <QRegularExpressionValidator>

/// A validator that never calls an empty entry invalid, so that a user can clear a field and type again.
///
/// Only the invokable validate() forgives; the validation that Qt's own input fields call is that of
/// QRegularExpressionValidator.
class UIUTILS_EXPORT ForgivingValidator : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    /// The answers of validate(), QValidator::State for QML.
    enum ValidatorState {
        Invalid = QValidator::Invalid,
        Intermediate = QValidator::Intermediate,
        Acceptable = QValidator::Acceptable,
    };
    Q_ENUM(ValidatorState)

    explicit ForgivingValidator(QObject* parent = nullptr);
    /// A validator that accepts what `expression` matches completely; `parent` deletes it.
    explicit ForgivingValidator(const QRegularExpression& expression, QObject* parent = nullptr);
    ~ForgivingValidator() override;

    using QRegularExpressionValidator::validate;

    /// The state of `input` with the cursor at `pos`: Acceptable if the expression matches all of it, Intermediate if
    /// it is empty or could become a match, else Invalid.
    Q_INVOKABLE virtual ForgivingValidator::ValidatorState validate(QString input, int pos);
};
