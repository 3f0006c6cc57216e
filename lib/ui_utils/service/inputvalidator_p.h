#pragma once

#include <QRegularExpression>
#include <QString>
#include <QVariant>

class QObject;
class QValidator;

namespace uiutils {

/// What an entry is held to.
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

/// A rule that takes every value of the type.
InputRule openRule(QLatin1String type);

/// A validator of an item's entry: a ForgivingValidator for textType, a QDoubleValidator for realType, else a
/// QIntValidator. The parent owns it.
QValidator* createValidator(const InputRule& rule, QObject* parent);

/// Makes `validator` hold entries to `rule`. Returns false, and changes nothing, when the rule takes one of another
/// kind.
bool applyRule(const InputRule& rule, QValidator* validator);

/// The expression for `pattern`. One that PCRE2 refuses for a hyphen behind a class escape ("[\d-.]") is read as its
/// author meant it; "\w" takes the marks of letters too. One that cannot be repaired, or is good only as long as nothing
/// stands around it ("(*UTF)a", "(?x)a # b"), accepts everything and is logged once.
QRegularExpression inputExpression(const QString& pattern);

/// `pattern` with the hyphens escaped that stand behind a class escape inside brackets.
QString withEscapedHyphens(const QString& pattern);

} // namespace uiutils
