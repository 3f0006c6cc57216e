#pragma once

#include "core/uiutils_export.h"

#include <QObject>

namespace uiutils {

/// How a value was judged. The same codes are used for the quality of items, for the cells of report documents and for
/// the writers. Any other number means no status. In QML: Status.Pass.
struct UIUTILS_EXPORT Status
{
    Q_GADGET

public:
    /// The codes in documents, items and writers.
    enum Code : qint8 { None = 0, Pass = 16, Marginal = 32, Fail = 64 };
    Q_ENUM(Code)

    Status() = delete;
};

/// How the text of a cell is aligned. Any other number means the center. In QML: Alignment.Right.
struct UIUTILS_EXPORT Alignment
{
    Q_GADGET

public:
    /// The codes in documents and writers.
    enum Code : qint8 { Center = 0, Left = 1, Right = 2 };
    Q_ENUM(Code)

    Alignment() = delete;
};

} // namespace uiutils
