#pragma once

#include <QObject>

#include <memory>

class QQuickWindow;

namespace uiutils {
class Host;
}

namespace uiutils::inspector {

class InspectorPanel;

/// The inspector in a window of its own, for an application that opens and closes it. It is made when it is first
/// opened; what it did to services ends when it is closed.
class InspectorWindow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    /// The host must be up and outlive the object.
    explicit InspectorWindow(Host* host, QObject* parent = nullptr);
    ~InspectorWindow() override;

    bool isOpen() const { return m_window != nullptr; }

    /// Opens the window, or closes it. A panel that cannot be made is reported in the log.
    Q_INVOKABLE void toggle();

Q_SIGNALS:
    void isOpenChanged();

private:
    void open();
    void close();

    Host* const m_host;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<InspectorPanel> m_panel;
};

} // namespace uiutils::inspector
