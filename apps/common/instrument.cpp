#include "common/instrument.h"

#include "common/locations.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QQmlContext>
#include <QQmlEngine>

namespace uiutils::apps {

namespace {

/// The beginning of the names of a service's items: the last part of a name such as "com.example.test", because QML
/// names contain no points.
QString tagOf(const QString& service)
{
    return service.section(QLatin1Char('.'), -1);
}

} // namespace

Instrument::Instrument(const kiv::embedded::EmbeddedBackend& backend)
{
    const QStringList names = backend.serviceNames();
    for (const QString& name : names) {
        auto* manifest = new Manifest(KIVClientInterface::getSessionBusClient(name), tagOf(name), name);
        QQmlEngine::setObjectOwnership(manifest, QQmlEngine::CppOwnership);
        m_manifests.append(manifest);
        m_byName.insert(name, QVariant::fromValue<QObject*>(manifest));
    }
    QQmlEngine::setObjectOwnership(&m_byName, QQmlEngine::CppOwnership);
}

Instrument::~Instrument()
{
    qDeleteAll(m_manifests);
}

void Instrument::showTo(QQmlEngine* engine)
{
    engine->addImportPath(qmlModuleFolder());
    engine->rootContext()->setContextProperty(QStringLiteral("services"), &m_byName);
    Manifest::setQmlContext(engine->rootContext());
}

QStringList Instrument::listing() const
{
    QStringList lines;
    const QStringList ids = Manifest::getKivIds(QString(), QString());
    for (const QString& id : ids) {
        if (const KivData* item = Manifest::getKivData(id))
            lines.append(
                    QStringList {item->getQmlTag(), item->getType(), item->getValueString()}.join(QLatin1Char('\t')));
    }
    lines.sort();
    return lines;
}

} // namespace uiutils::apps
