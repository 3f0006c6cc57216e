#pragma once

#include "base/folderwatch_p.h"
#include "errorpane.h"

#include <functional>
#include <memory>

namespace uiutils {
class Host;
}

namespace uiutils::qmltool {

class Page;
class PageWindow;

/// Shows a page again when its file, a file below its folder or one below an import folder has changed, and when
/// service files were read again. While something is wrong with the files, the page stays as it was, and what is wrong
/// stands in its window.
class PageReload
{
public:
    using PageMaker = std::function<std::unique_ptr<Page>()>;

    /// All of these must outlive the object. `makePage` loads the page.
    PageReload(Host* host, PageWindow* window, const QString& page, const QStringList& importFolders,
            const PageMaker& makePage);
    ~PageReload();
    Q_DISABLE_COPY_MOVE(PageReload)

private:
    void reload();
    void report();

    Host* const m_host;
    PageWindow* const m_window;
    const PageMaker m_makePage;
    QString m_pageProblem;
    QStringList m_serviceProblems;
    ErrorPane m_errors;
    QMetaObject::Connection m_read;
    FolderWatch m_watch;
};

} // namespace uiutils::qmltool
