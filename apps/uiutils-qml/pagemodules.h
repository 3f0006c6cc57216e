#pragma once

#include <QQmlEngine>
#include <QString>
#include <QTemporaryDir>

namespace uiutils::qmltool {

/// The modules of the services that run, made when a page imports one that it does not find.
class PageModules
{
public:
    /// Lets the engine look for modules here, after every other place. If there are modules already, they say what the
    /// services are now.
    void showTo(QQmlEngine* engine);

    /// Whether the modules were not there when a page failed with that error, and it lacked one of them. Then they are
    /// there afterwards, and the page is to be loaded again.
    bool help(const QString& error);

private:
    void write();

    const QTemporaryDir m_folder;
    bool m_areWritten = false;
};

} // namespace uiutils::qmltool
