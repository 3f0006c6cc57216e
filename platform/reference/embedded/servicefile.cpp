#include "servicefile_p.h"

#include "descriptioncheck_p.h"
#include "filedescription_p.h"
#include "jsonschema_p.h"

#include <kiv/plovjsondocument.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

// Resources of a static library must be initialized explicitly.
static void initResources()
{
    Q_INIT_RESOURCE(schemas);
    Q_INIT_RESOURCE(services);
}

namespace kiv::embedded {

namespace {

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
        violation = schemaViolation(serviceFileSchema(), document.object());
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
