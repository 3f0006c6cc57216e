#pragma once

#include "inspector.h"

#include <QQmlEngine>
#include <QString>

#include <memory>

class QQuickItem;

namespace uiutils {
class Host;
}

namespace uiutils::inspector {

/// The inspector as an item for any window, with an engine of its own: it stays when the pages beside it are loaded
/// again.
class InspectorPanel
{
public:
    /// The host must be up and outlive the object.
    explicit InspectorPanel(Host* host);
    ~InspectorPanel();
    Q_DISABLE_COPY_MOVE(InspectorPanel)

    /// The engine of the panel. A program without pages of its own gives it to Host::showTo() before load(), so that
    /// items know whether they are applicable.
    QQmlEngine* engine() { return &m_engine; }

    /// Makes the item. Without one afterwards, error() says why.
    QQuickItem* load();
    QQuickItem* item() const { return m_item.get(); }
    QString error() const { return m_error; }
    /// See Inspector::isListening().
    bool isListening() const { return m_inspector.isListening(); }

private:
    QQmlEngine m_engine;
    Inspector m_inspector;
    std::unique_ptr<QQuickItem> m_item;
    QString m_error;
};

} // namespace uiutils::inspector
