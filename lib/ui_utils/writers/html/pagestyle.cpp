#include "writers/html/pagestyle_p.h"

#include "base/paths_p.h"
#include "writers/html/style.h"

QVariantMap uiutils::defaultPageAttributes()
{
    const QString blue = QStringLiteral("rgb(0, 104, 155)");
    const QString white = QStringLiteral("white");
    const QString sansSerif = QStringLiteral("sans-serif");
    return {
            {QStringLiteral("isForPDF"), false},
            {QStringLiteral("h1_bg"), blue},
            {QStringLiteral("h2_bg"), blue},
            {QStringLiteral("h3_bg"), blue},
            {QStringLiteral("bg"), white},
            {QStringLiteral("h1_fg"), white},
            {QStringLiteral("h2_fg"), white},
            {QStringLiteral("h3_fg"), white},
            {QStringLiteral("table_bg"), QStringLiteral("rgb(150, 150, 150)")},
            {QStringLiteral("table_header_bg"), blue},
            {QStringLiteral("table_header_fg"), white},
            {QStringLiteral("table_cell_bg"), QStringLiteral("rgb(240, 250, 255)")},
            {QStringLiteral("body_font_family"), sansSerif},
            {QStringLiteral("table_font_family"), sansSerif},
            {QStringLiteral("table_header_font_family"), sansSerif},
            {QStringLiteral("table_cell_font_family"), sansSerif},
            {QStringLiteral("indent_pix"), QStringLiteral("10")},
            {QStringLiteral("logo"), QString(uiutils::paths::logo)},
            {QStringLiteral("orientation"), QStringLiteral("portrait")},
            {QStringLiteral("showSoftwareRevs"), true},
            {QStringLiteral("showHardwareRevs"), true},
            {QStringLiteral("includeCustomerInfoTop"), false},
            {QStringLiteral("includeTechnicianInfoTop"), false},
            {QStringLiteral("includeCustomerInfoEnd"), false},
            {QStringLiteral("includeTechnicianInfoEnd"), false},
    };
}

QList<Style*> uiutils::pageStyles(const std::function<QString(const QString&)>& text)
{
    QList<Style*> rules;
    const auto add = [&](const QString& selector) {
        rules += new Style(selector);
        return rules.constLast();
    };

    for (int level = 1; level <= 3; ++level) {
        Style* heading = add(QStringLiteral("h%1").arg(level));
        heading->setProperty(QStringLiteral("background-color"), text(QStringLiteral("h%1_bg").arg(level)));
        heading->setProperty(QStringLiteral("color"), text(QStringLiteral("h%1_fg").arg(level)));
        heading->setMarginTop(12);
        heading->setMarginBottom(5);
    }

    Style* paragraph = add(QStringLiteral("p"));
    paragraph->setProperty(QStringLiteral("font-size"), QStringLiteral("medium"));
    paragraph->setMarginTop(5);
    paragraph->setMarginBottom(5);

    Style* body = add(QStringLiteral("body"));
    body->setFontFamily(text(QStringLiteral("body_font_family")));
    body->setProperty(QStringLiteral("margin-right"), QStringLiteral("%1%").arg(2));
    body->setProperty(QStringLiteral("margin-left"), QStringLiteral("%1%").arg(2));

    Style* table = add(QStringLiteral("table"));
    table->setFontFamily(text(QStringLiteral("table_font_family")));
    table->setProperty(QStringLiteral("font-size"), QStringLiteral("medium"));
    table->setProperty(QStringLiteral("margin"), QStringLiteral("10px"));
    table->setBackground(text(QStringLiteral("table_bg")));
    table->setProperty(QStringLiteral("border-width"), QStringLiteral("1px"));

    Style* headerCell = add(QStringLiteral("th"));
    headerCell->setFontFamily(text(QStringLiteral("table_header_font_family")));
    headerCell->setBackground(text(QStringLiteral("table_header_bg")));
    headerCell->setProperty(QStringLiteral("color"), text(QStringLiteral("table_header_fg")));
    headerCell->setPadding(2, 8);

    Style* cell = add(QStringLiteral("td"));
    cell->setFontFamily(text(QStringLiteral("table_cell_font_family")));
    cell->setBackground(text(QStringLiteral("table_cell_bg")));
    cell->setPadding(3, 8);
    return rules;
}
