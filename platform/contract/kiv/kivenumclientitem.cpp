#include <kiv/kivenumclientitem.h>

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
