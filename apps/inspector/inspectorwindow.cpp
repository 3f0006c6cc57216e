#include "inspectorwindow.h"

#include "inspectorpanel.h"
#include "texts.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace uiutils::inspector {

InspectorWindow::InspectorWindow(Host* host, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

InspectorWindow::~InspectorWindow()
{
    close();
}

void InspectorWindow::toggle()
{
    if (m_window)
        close();
    else
        open();
    Q_EMIT isOpenChanged();
}

void InspectorWindow::open()
{
    m_panel = std::make_unique<InspectorPanel>(m_host);
    QQuickItem* const item = m_panel->load();
    if (!item) {
        qWarning("%s", qUtf8Printable(m_panel->error()));
        m_panel.reset();
        return;
    }
    m_window = std::make_unique<QQuickWindow>();
    m_window->setTitle(Texts::tr("Inspector"));
    item->setParentItem(m_window->contentItem());
    m_panel->engine()->setIncubationController(m_window->incubationController());
    const auto fill = [this, item] { item->setSize(m_window->size()); };
    connect(m_window.get(), &QWindow::widthChanged, item, fill);
    connect(m_window.get(), &QWindow::heightChanged, item, fill);
    // The user may close it as any window; its own event must have ended before it is deleted.
    connect(
            m_window.get(), &QWindow::visibleChanged, this,
            [this](bool isVisible) {
                if (!isVisible && m_window && !m_window->isVisible())
                    toggle();
            },
            Qt::QueuedConnection);
    m_window->resize(int(item->implicitWidth()), int(item->implicitHeight() * 1.2));
    m_window->show();
}

void InspectorWindow::close()
{
    m_panel.reset();
    m_window.reset();
}

} // namespace uiutils::inspector
