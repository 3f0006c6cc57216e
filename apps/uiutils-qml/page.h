#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QString>

#include <memory>

namespace uiutils::qmltool {

/// A QML page with an engine of its own: what is loaded after a change of files shares nothing with what was loaded
/// before.
class Page
{
public:
    /// Loads the file. Without a root afterwards, error() says why.
    Page(std::unique_ptr<QQmlEngine> engine, const QString& file);
    ~Page();
    Q_DISABLE_COPY_MOVE(Page)

    QObject* root() const { return m_root.get(); }
    QQmlEngine* engine() const { return m_engine.get(); }
    /// One line for each mistake, with file, line and column where there is one.
    QString error() const { return m_error; }
    /// The mistakes in files; empty also if the page is nothing that can be shown.
    QList<QQmlError> errors() const { return m_component.errors(); }

private:
    const std::unique_ptr<QQmlEngine> m_engine;
    QQmlComponent m_component;
    std::unique_ptr<QObject> m_root;
    QString m_error;
};

} // namespace uiutils::qmltool
