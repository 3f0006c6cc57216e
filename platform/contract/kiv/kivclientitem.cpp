#include <kiv/kivclientitem.h>

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
