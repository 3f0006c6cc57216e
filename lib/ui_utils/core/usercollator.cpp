#include "core/usercollator_p.h"

#include <QLocale>

namespace uiutils {

QCollator userCollator()
{
    // The C locale knows neither numbers nor capital letters.
    QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace uiutils
