#include "jsonschema_p.h"

#include <QStringList>

#include <algorithm>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wextra"
#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>
#pragma GCC diagnostic pop

namespace kiv::embedded {

namespace {

/// "/items/2/type" for the validator's "<root>", "[items]", "[2]", "[type]".
QString jsonPointer(const std::vector<std::string>& context)
{
    QString pointer;
    for (const std::string& step : context) {
        QString word = QString::fromStdString(step);
        if (!word.startsWith(QLatin1Char('[')) || !word.endsWith(QLatin1Char(']')))
            continue;
        word = word.mid(1, word.size() - 2);
        word.replace(QLatin1Char('~'), QLatin1String("~0")).replace(QLatin1Char('/'), QLatin1String("~1"));
        pointer += QLatin1Char('/') + word;
    }
    return pointer.isEmpty() ? QStringLiteral("/") : pointer;
}

} // namespace

QString schemaViolation(const QJsonObject& schema, const QJsonObject& document)
{
    valijson::Schema compiled;
    valijson::SchemaParser parser;
    parser.populateSchema(valijson::adapters::QtJsonAdapter(QJsonValue(schema)), compiled);

    valijson::Validator validator;
    valijson::ValidationResults results;
    const valijson::adapters::QtJsonAdapter target {QJsonValue(document)};
    if (validator.validate(compiled, target, &results))
        return QString();

    // A wrong value makes every object around it wrong too; the deepest place is the one to correct.
    const auto deepest = std::max_element(results.begin(), results.end(),
            [](const auto& a, const auto& b) { return a.context.size() < b.context.size(); });
    if (deepest == results.end())
        return QStringLiteral("/: does not conform to the schema");
    return jsonPointer(deepest->context) + QLatin1String(": ") + QString::fromStdString(deepest->description);
}

} // namespace kiv::embedded
