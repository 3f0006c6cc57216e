#pragma once

#include <QString>

class KIVClientItem;
class KivData;

namespace uiutils::inspector {

/// The value of an item in one short line: a text that is cut off where it gets long, and of lists, tables and
/// aggregates how much they hold. A trace of a million points costs no more than a number.
QString shortText(const KivData& item);
QString shortText(const KIVClientItem& item);

} // namespace uiutils::inspector
