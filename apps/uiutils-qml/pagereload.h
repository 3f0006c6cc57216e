#pragma once

#include "base/folderwatch_p.h"
#include "errorpane.h"

#include <QQmlEngine>

#include <functional>
#include <memory>

namespace uiutils {
class Host;
}

namespace uiutils::qmltool {

class PageWindow;

/// Shows a page again when its file, a file below its folder or one below an import folder has changed, and when
/// service files were read again. While something is wrong with the files, the page stays as it was, and what is wrong
/// stands in its window.
class PageReload
{
public:
    using EngineMaker = std::function<std::unique_ptr<QQmlEngine>()>;

    /// All of these must outlive the object. `makeEngine` makes an engine for the services.
    PageReload(Host* host, PageWindow* window, const QString& page, const QStringList& importFolders,
            const EngineMaker& makeEngine);
    ~PageReload();
    Q_DISABLE_COPY_MOVE(PageReload)

private:
    void reload();
    void report();

    Host* const m_host;
    PageWindow* const m_window;
    const QString m_page;
    const EngineMaker m_makeEngine;
    QString m_pageProblem;
    QStringList m_serviceProblems;
    ErrorPane m_errors;
    QMetaObject::Connection m_read;
    FolderWatch m_watch;
};

} // namespace uiutils::qmltool
