#pragma once

#include <QString>
#include <QVariantList>

namespace kiv::simulation {

/// The values of an item in a recording of services, at equal distances in time.
struct RecordedValues
{
    /// Begins with the first value that the recording has of the item; an invalid one stands for no value.
    QVariantList values;
    /// Lines that cannot be read, which are left out.
    qint64 brokenLines = 0;
    /// Why there are no values, with the file; empty when there are.
    QString problem;
};

/// Maximum number of values.
constexpr int mostRecordedValues = 1000 * 1000;

/// Reads the item of that id: the value that it had at its first moment, `everyMs` later, and so on to the end of the
/// recording. A recording that is cut is read as far as it goes.
RecordedValues readRecordedValues(const QString& path, const QString& id, qint64 everyMs);

} // namespace kiv::simulation
