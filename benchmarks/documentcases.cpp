#include "case.h"

#include "document/reporttemplate.h"

namespace bench {

namespace {

void buildWithTemplate(int rows, const QVariantMap& attributes)
{
    ReportTemplate report;
    report.beginReport(QStringLiteral("bench"));
    report.beginTable(QStringLiteral("table"), QStringLiteral("Table"));
    for (int i = 0; i < rows; ++i)
        report.addRow(QStringLiteral("tag"), QStringLiteral("Sample"), i, attributes);
    report.endTable();
    report.endReport();
}

/// One counter and one object, the same rows inserted as they come.
void buildByHand(int rows, const QVariantMap& attributes)
{
    QJsonObject table;
    int number = 1;
    for (int i = 0; i < rows; ++i) {
        QJsonObject cell;
        for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
            cell.insert(QLatin1String("attr_") + it.key(), it.value().toString());
        cell.insert(QLatin1String("label"), QVariant(i).toString());
        cell.insert(QLatin1String("tag"), QStringLiteral("tag"));
        cell.insert(QLatin1String("title"), QStringLiteral("Sample"));
        table.insert(QLatin1String("row_") + QString::number(number++),
                QJsonObject {{QStringLiteral("cell_0"), cell}, {QStringLiteral("label"), QStringLiteral("Sample")}});
    }
}

} // namespace

QVector<Result> documentCases(int runs)
{
    const QVariantMap attributes {{QStringLiteral("status"), 16}};
    QVector<Result> results;
    const auto measure = [&](int rows, double limit) {
        const Timing timing = interleaved(
                runs, [&] { buildWithTemplate(rows, attributes); }, [&] { buildByHand(rows, attributes); });
        results.append({QStringLiteral("building a document of %L1 rows / one counter, arrival order").arg(rows),
                QStringLiteral("ms CPU"), timing.ours, timing.floor, limit});
        return timing.ours;
    };
    const double small = measure(10'000, 0.95);
    const double large = measure(100'000, 0.5);
    results.append({QStringLiteral("building 100,000 rows / building 10,000 rows"), QStringLiteral("ms CPU"), large,
            small, 12});
    return results;
}

} // namespace bench
