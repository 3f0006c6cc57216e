#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>

namespace uiutils {

/// Makes the FocusFrame of a control when the control has the focus for the first time: most controls of a page never
/// have it. The frame lies in the item that the watch is declared in, and lives as long.
class FocusWatch : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// By default the item that the watch is declared in. Later changes have no effect.
    Q_PROPERTY(QQuickItem* control READ control WRITE setControl)
    /// Whether the frame is inside of the control. Later changes have no effect.
    Q_PROPERTY(bool within READ isWithin WRITE setWithin)
    /// Whether the control's focus is shown here, such as at the tab in use.
    Q_PROPERTY(bool active READ isActive WRITE setActive)

public:
    using QObject::QObject;

    QQuickItem* control() const { return m_control; }
    void setControl(QQuickItem* control) { m_control = control; }
    bool isWithin() const { return m_isWithin; }
    void setWithin(bool isWithin) { m_isWithin = isWithin; }
    bool isActive() const { return m_isActive; }
    void setActive(bool isActive);

    void classBegin() override { }
    void componentComplete() override;

private:
    void look();
    void makeFrame();

    QPointer<QQuickItem> m_control;
    QPointer<QObject> m_frame;
    bool m_isWithin = false;
    bool m_isActive = true;
    bool m_isComplete = false;
};

} // namespace uiutils
