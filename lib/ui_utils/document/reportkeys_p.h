#pragma once

#include <QLatin1String>

/// The words of a report document.
namespace uiutils::keys {

inline const QLatin1String nodeType("node_type");
inline const QLatin1String report("report");
inline const QLatin1String section("section");
inline const QLatin1String table("table");

inline const QLatin1String tag("tag");
inline const QLatin1String title("title");
inline const QLatin1String label("label");
inline const QLatin1String enabled("enabled");
inline const QLatin1String service("service");
inline const QLatin1String configModule("config_module");
inline const QLatin1String indentPixels("indent_pix");
inline const QLatin1String language("language");
inline const QLatin1String direction("direction");
inline const QLatin1String useRowLabels("use_row_labels");
inline const QLatin1String numColumns("num_columns");
inline const QLatin1String statusAttribute("attr_status");
inline const QLatin1String alignAttribute("attr_align");

// Families of numbered or named keys; the number or the name follows.
inline const QLatin1String sectionFamily("section_");
inline const QLatin1String tableFamily("table_");
inline const QLatin1String rowFamily("row_");
inline const QLatin1String columnLabelFamily("col_label_");
inline const QLatin1String cellFamily("cell_");
inline const QLatin1String attributeFamily("attr_");
inline const QLatin1String logFamily("log_");

/// The text that means an empty one.
inline const QLatin1String emptyText("EMPTY");
/// The label that makes a table a plot, and the key of data that the plot has itself.
inline const QLatin1String plot("plot");
inline const QLatin1String plotData("plot_data");

} // namespace uiutils::keys
