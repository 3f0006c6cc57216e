#pragma once

#include "core/status.h"

#include <QString>

/// A cell of a printed table as it is shown.
struct ReportCell
{
    /// A row label is distinguished from the values.
    enum class Kind : quint8 { Value, RowLabel };

    /// Plain text; line feeds begin new lines.
    QString text;
    /// A code of uiutils::Status; anything else has no icon.
    int status = uiutils::Status::None;
    /// A code of uiutils::Alignment, or ReportTable::automatic; anything else means the center.
    qint8 alignment = uiutils::Alignment::Center;
    /// Whether the cell is the row's label.
    Kind kind = Kind::Value;
    /// How many columns the cell covers.
    quint16 columnSpan = 1;
};

Q_DECLARE_TYPEINFO(ReportCell, Q_MOVABLE_TYPE);
