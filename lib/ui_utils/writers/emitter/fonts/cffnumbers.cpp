#include "writers/emitter/fonts/cffnumbers_p.h"

namespace uiutils::fonts {

bool numberByGlyphs(QByteArray* cff)
{
    return !cff->isEmpty();
}

} // namespace uiutils::fonts
