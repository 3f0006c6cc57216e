#pragma once

#include "report/reportformats_p.h"

#include <QString>

class KivData;

namespace uiutils {

/// What is wrong with `name` as the value of the setting `item`, which may be null, and as the name of reports in these
/// formats, in words that are shown where it is typed. Empty if nothing is.
QString reportNameProblem(const QString& name, const KivData* item, const FormatInfos& formats, bool compressed);

} // namespace uiutils
