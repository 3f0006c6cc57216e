#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

namespace kiv::replay {

/// What an item says of itself without ever emitting a signal.
struct QuietFacts
{
    QString label;
    QVariant minimum;
    QVariant maximum;
    QVariantMap attributes;

    friend bool operator==(const QuietFacts& a, const QuietFacts& b)
    {
        return a.label == b.label && a.minimum == b.minimum && a.maximum == b.maximum && a.attributes == b.attributes;
    }
    friend bool operator!=(const QuietFacts& a, const QuietFacts& b) { return !(a == b); }
};

/// The quiet facts, with those of the named attributes that the item has.
QuietFacts quietFacts(const KIVClientItem& item, const QStringList& attributes);

/// The unit of the item itself; empty when it has only that of its formatter, which follows the value.
QString ownUnit(const KIVClientItem& item);

/// The choices of an enumeration as JSON; empty for any other item.
QByteArray choicesJson(const KIVClientItem& item);

/// The members of an aggregate or table as JSON, empty for any other item. The contract does not say their types: they
/// are those of the present value, and of `before` where there is none.
QByteArray membersJson(const KIVClientItem& item, const QByteArray& before);

/// Appends everything that the item says to the line of a recording that names it.
void appendDescription(QByteArray* line, const KIVClientItem& item, const QuietFacts& quiet, const QByteArray& members);

} // namespace kiv::replay
