#include "servicefile_p.h"

#include "descriptioncheck_p.h"
#include "filedescription_p.h"
#include "jsonschema_p.h"
#include "texts_p.h"

#include <kiv/plovjsondocument.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

// Resources of a static library must be initialized explicitly.
static void initResources()
{
    Q_INIT_RESOURCE(schemas);
    Q_INIT_RESOURCE(services);
}

namespace kiv::embedded {

namespace {

/// More characters are none that anybody would recognize.
constexpr int maximumShownId = 255;

QJsonObject resource(const QString& path)
{
    initResources();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

const QJsonObject& serviceFileSchema()
{
    static const QJsonObject schema = resource(QStringLiteral(":/uiutils/schemas/service-file.schema.json"));
    return schema;
}

/// Whether the document says what the shipped file of that name says. Tests hold those against the schema, whose
/// check would take a third of the time in which a program starts.
bool isShipped(const QString& path, const QJsonObject& document)
{
    return document == resource(QStringLiteral(":/uiutils/services/") + QFileInfo(path).fileName());
}

/// Where the document contradicts the schema: the place, and the id of the item. The validator's own words speak of the
/// schema, which nobody has read who writes a service file; a program of its own says what is allowed.
QString schemaProblem(const QJsonObject& file)
{
    const QString violation = schemaViolation(serviceFileSchema(), file);
    if (violation.isEmpty())
        return QString();
    const QString place = violation.section(QLatin1String(": "), 0, 0);
    const QString problem = place + QLatin1String(": ")
            + ServiceFileTexts::tr("a service file may not say this here; uiutils-check tells what it may");
    if (!place.startsWith(QLatin1String("/items/")))
        return problem;
    const QJsonValue item
            = file.value(QLatin1String("items")).toArray().at(place.section(QLatin1Char('/'), 2, 2).toInt());
    const QString id = item.toObject().value(QLatin1String("id")).toString();
    // The sentence goes to terminals, which obey control characters.
    const bool isShown = !id.isEmpty() && id.size() <= maximumShownId
            && std::all_of(id.cbegin(), id.cend(), [](QChar c) { return c.isPrint(); });
    return isShown ? problem + QLatin1String(" [") + id + QLatin1Char(']') : problem;
}

/// What is wrong in what the file describes; empty if nothing is.
QString descriptionProblem(const ServiceDescription& service, const QJsonObject& file)
{
    const QJsonArray items = file.value(QLatin1String("items")).toArray();
    for (int i = 0; i < items.size(); ++i) {
        const QString problem
                = aggregatesProblem(service.items.at(i), items.at(i).toObject().value(QLatin1String("value")));
        if (!problem.isEmpty())
            return QStringLiteral("/items/%1").arg(i) + problem;
    }
    return serviceProblem(service);
}

} // namespace

std::optional<ServiceFile> readServiceFile(const QString& path, QString* problem)
{
    PlovJsonDocument document;
    if (!document.readFile(path)) {
        *problem = document.errorString();
        return std::nullopt;
    }
    QString violation;
    if (!isShipped(path, document.object()))
        violation = schemaProblem(document.object());
    ServiceDescription service;
    if (violation.isEmpty()) {
        service = describedService(document.object());
        violation = descriptionProblem(service, document.object());
    }
    if (violation.isEmpty())
        return ServiceFile {document.object(), service};
    *problem = path + QLatin1String(": ") + violation;
    return std::nullopt;
}

} // namespace kiv::embedded
