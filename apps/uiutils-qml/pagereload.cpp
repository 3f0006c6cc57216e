#include "pagereload.h"

#include "page.h"
#include "pagewindow.h"
#include "ui_host/host.h"

#include <QFileInfo>

#include <cstdio>

namespace uiutils::qmltool {

namespace {

/// What pages are made of.
const QStringList& pageFiles()
{
    static const QStringList names {QStringLiteral("*.qml"), QStringLiteral("*.js"), QStringLiteral("*.mjs"),
            QStringLiteral("qmldir"), QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.svg")};
    return names;
}

} // namespace

PageReload::PageReload(Host* host, PageWindow* window, const QString& page, const QStringList& importFolders,
        const PageMaker& makePage)
    : m_host(host)
    , m_window(window)
    , m_makePage(makePage)
    , m_watch(QStringList(QFileInfo(page).absolutePath()) + importFolders, pageFiles(), FolderWatch::AllBelow,
              [this](const QStringList&, bool) { reload(); })
{
    m_host->followServiceFiles();
    // The page uses what is new of its services as soon as it is loaded again.
    m_read = QObject::connect(m_host, &Host::serviceFilesRead, [this](const QStringList& problems) {
        const bool isWorse = problems.size() > m_serviceProblems.size();
        m_serviceProblems = problems;
        if (isWorse)
            report();
        else
            reload();
    });
}

PageReload::~PageReload()
{
    QObject::disconnect(m_read);
}

void PageReload::reload()
{
    auto page = m_makePage();
    m_pageProblem = page->error();
    if (page->root()) {
        // It may stand in a window that ends with the page before.
        m_errors.hide();
        m_window->show(std::move(page));
    } else {
        page.reset();
        m_host->showTo(m_window->page()->engine());
    }
    report();
}

void PageReload::report()
{
    QStringList problems = m_serviceProblems;
    if (!m_pageProblem.isEmpty())
        problems.prepend(m_pageProblem);
    if (problems.isEmpty())
        return m_errors.hide();
    const QString text = problems.join(QLatin1Char('\n'));
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    m_errors.show(m_window->window(), text);
}

} // namespace uiutils::qmltool
