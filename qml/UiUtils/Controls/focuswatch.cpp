#include "focuswatch.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace uiutils {

void FocusWatch::setActive(bool isActive)
{
    m_isActive = isActive;
    if (m_frame)
        m_frame->setProperty("active", isActive);
    look();
}

void FocusWatch::componentComplete()
{
    m_isComplete = true;
    if (!m_control)
        m_control = qobject_cast<QQuickItem*>(parent());
    if (m_control)
        connect(m_control, &QQuickItem::activeFocusChanged, this, &FocusWatch::look);
    look();
}

void FocusWatch::look()
{
    if (m_isComplete && m_isActive && !m_frame && m_control && m_control->hasActiveFocus())
        makeFrame();
}

void FocusWatch::makeFrame()
{
    QQmlContext* const context = qmlContext(this);
    // Beside the file that declares the watch.
    QQmlComponent component(context->engine(), context->resolvedUrl(QUrl(QStringLiteral("FocusFrame.qml"))));
    if (!component.isReady()) {
        qWarning("%s", qUtf8Printable(component.errorString()));
        return;
    }
    const QVariantMap properties {{QStringLiteral("parent"), QVariant::fromValue(parent())},
            {QStringLiteral("control"), QVariant::fromValue(m_control.data())}, {QStringLiteral("within"), m_isWithin}};
    m_frame = component.createWithInitialProperties(properties, context);
    m_frame->setParent(parent());
}

} // namespace uiutils
