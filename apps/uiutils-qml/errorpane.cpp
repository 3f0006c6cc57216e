#include "errorpane.h"

#include "module/modulepath.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

namespace uiutils::qmltool {

ErrorPane::ErrorPane()
{
    const QString modules = qmlImportPath();
    if (!modules.isEmpty())
        m_engine.addImportPath(modules);
}

ErrorPane::~ErrorPane() = default;

void ErrorPane::show(QQuickWindow* window, const QString& text)
{
    QQmlComponent component(&m_engine, QStringLiteral("qrc:/uiutils-qml/ErrorPane.qml"));
    m_item.reset(qobject_cast<QQuickItem*>(component.create()));
    if (!m_item)
        return;
    m_item->setProperty("text", text);
    m_item->setParentItem(window->contentItem());
}

/// An item that a page has touched loses its properties when the engine of that page ends, so each text has a new one.
void ErrorPane::hide()
{
    m_item.reset();
}

} // namespace uiutils::qmltool
