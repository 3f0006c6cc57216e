#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivvecclientitem.h>

#include <QStringList>

KIVClientItem::KIVClientItem(QObject* parent)
    : QObject(parent)
{
}

KIVClientItem::~KIVClientItem() = default;

QString KIVClientItem::getName() const
{
    const QStringList words = getId().split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const bool isArray = !words.isEmpty()
            && (words.last() == QLatin1String("stringARRAY") || words.last() == QLatin1String("doubleARRAY"));
    return words.value(words.size() - (isArray ? 2 : 1));
}

KIVEnumChoicesClientItem::KIVEnumChoicesClientItem(QObject* parent)
    : QObject(parent)
{
}

KIVEnumChoicesClientItem::~KIVEnumChoicesClientItem() = default;

int KIVEnumChoicesClientItem::indexOf(int value) const
{
    for (int i = 0, n = count(); i < n; ++i) {
        if (valueAt(i) == value)
            return i;
    }
    return -1;
}

KIVEnumClientItem::KIVEnumClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KIVEnumClientItem::~KIVEnumClientItem() = default;

KIVVecClientItem::KIVVecClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KIVVecClientItem::~KIVVecClientItem() = default;

KivAggregateClientItem::KivAggregateClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KivAggregateClientItem::~KivAggregateClientItem() = default;

KivListAggregateClientItem::KivListAggregateClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KivListAggregateClientItem::~KivListAggregateClientItem() = default;
