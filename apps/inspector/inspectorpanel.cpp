#include "inspectorpanel.h"

#include "languages/languages.h"
#include "module/modulepath.h"

#include <QQmlComponent>
#include <QQuickItem>

namespace uiutils::inspector {

InspectorPanel::InspectorPanel(Host* host)
    : m_inspector(host, favouritesFile())
{
    registerTypes();
    Languages::instance()->follow(&m_engine);
    const QString modules = qmlImportPath();
    if (!modules.isEmpty())
        m_engine.addImportPath(modules);
}

InspectorPanel::~InspectorPanel() = default;

QQuickItem* InspectorPanel::load()
{
    QQmlComponent component(&m_engine, QStringLiteral("qrc:/uiutils/inspector/InspectorPanel.qml"));
    const QVariantMap properties {{QStringLiteral("inspector"), QVariant::fromValue(&m_inspector)}};
    m_item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
    m_error = component.errorString();
    return m_item.get();
}

} // namespace uiutils::inspector
