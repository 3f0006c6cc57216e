#include "page.h"

#include "texts.h"

#include <QFileInfo>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>

namespace uiutils::qmltool {

namespace {

QString plainTextOf(const QQmlComponent& component)
{
    QStringList lines;
    const QList<QQmlError> errors = component.errors();
    for (const QQmlError& error : errors)
        lines.append(error.toString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace

Page::Page(std::unique_ptr<QQmlEngine> engine, const QString& file)
    : m_engine(std::move(engine))
    , m_component(m_engine.get())
{
    if (!QFileInfo(file).isFile()) {
        m_error = Texts::tr("There is no page %1.").arg(file);
        return;
    }
    m_component.loadUrl(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()), QQmlComponent::PreferSynchronous);
    if (m_component.isReady())
        m_root.reset(m_component.create());
    if (!m_root) {
        m_error = plainTextOf(m_component);
    } else if (!qobject_cast<QQuickItem*>(m_root.get()) && !qobject_cast<QQuickWindow*>(m_root.get())) {
        m_root.reset();
        m_error = Texts::tr("The page is neither an item nor a window.");
    }
}

Page::~Page() = default;

} // namespace uiutils::qmltool
