#pragma once

#include <memory>

class ReportTable;

namespace uiutils {

/// The single row of a table as a list: each column that is not empty is a row with its label and its value.
std::unique_ptr<ReportTable> rowAsList(const ReportTable& table);

} // namespace uiutils
