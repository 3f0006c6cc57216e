#pragma once

#include <QRegularExpression>
#include <QString>
#include <QVariant>

class QObject;
class QValidator;

namespace uiutils {

/// What an entry must satisfy.
struct InputRule
{
    /// The type's name, for example "double".
    QString type;
    /// Of a text.
    QString regex;
    /// Of a number; what is no number counts as 0.
    QVariant minimum;
    QVariant maximum;
    unsigned precision = 0;
};

/// The types that have validators of their own.
inline const QLatin1String textType("std::string");
inline const QLatin1String realType("double");

/// A rule that accepts every value of the type.
InputRule openRule(QLatin1String type);

/// A validator of an item's entry: a ForgivingValidator for textType, a QDoubleValidator for realType, else a
/// QIntValidator. The parent owns it.
QValidator* createValidator(const InputRule& rule, QObject* parent);

/// Makes `validator` apply `rule`. Returns false, and changes nothing, if the rule needs a validator of another kind.
bool applyRule(const InputRule& rule, QValidator* validator);

/// The expression for `pattern`. If PCRE2 rejects it because of a hyphen after a class escape ("[\d-.]"), it is read as
/// its author meant it; "\w" matches the marks of letters too. An expression that cannot be repaired, or that is valid
/// only without text around it ("(*UTF)a", "(?x)a # b"), accepts everything, and the log has a line about it once.
QRegularExpression inputExpression(const QString& pattern);

/// `pattern` with an escape before each hyphen that follows a class escape inside brackets.
QString withEscapedHyphens(const QString& pattern);

} // namespace uiutils
