#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QString>

namespace uiutils::check {

/// What is known of the expression that an item's texts must match completely.
struct RegexFacts
{
    QRegularExpression form;
    /// Why it accepts everything; empty for one that can be used.
    QString problem;
    /// Whether a short text keeps it busy for long.
    bool isCostly = false;
};

/// Remembers expressions, of which many items have the same.
class RegexCheck
{
public:
    const RegexFacts& facts(const QString& pattern);

private:
    QHash<QString, RegexFacts> m_known;
};

} // namespace uiutils::check
