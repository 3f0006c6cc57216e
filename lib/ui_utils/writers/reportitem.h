#pragma once

#include "core/uiutils_export.h"

#include <QList>

/// Something that a printed report shows: a table, a text, an image.
class UIUTILS_EXPORT ReportItem
{
public:
    ReportItem();
    virtual ~ReportItem();
    Q_DISABLE_COPY_MOVE(ReportItem)
};

namespace uiutils {

/// The list that the passes of a save share: what the HTML pass appends, the page renderer draws. It owns nothing by
/// itself; who starts a pass deletes the items of the last one.
UIUTILS_EXPORT QList<ReportItem*>& sharedReportItems();

} // namespace uiutils
