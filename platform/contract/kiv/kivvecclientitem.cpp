#include <kiv/kivvecclientitem.h>

KIVVecClientItem::KIVVecClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KIVVecClientItem::~KIVVecClientItem() = default;
