#include "base/batchname_p.h"

#include <utility>

namespace uiutils {

namespace {

const QLatin1Char inName('_');
const QLatin1Char inBatch(':');

/// A single digit counts as an index.
QString withSeparator(QString name, QLatin1Char from, QLatin1Char to, int minimumSize)
{
    const int separator = name.size() - 2;
    if (name.size() >= minimumSize && name.at(separator) == from && name.at(separator + 1).isDigit())
        name[separator] = to;
    return name;
}

} // namespace

QString toBatchName(QString name)
{
    return withSeparator(std::move(name), inName, inBatch, 4);
}

QString fromBatchName(QString batchName)
{
    return withSeparator(std::move(batchName), inBatch, inName, 2);
}

} // namespace uiutils
