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
        const EngineMaker& makeEngine)
    : m_host(host)
    , m_window(window)
    , m_page(page)
    , m_makeEngine(makeEngine)
    , m_watch(QStringList(QFileInfo(page).absolutePath()) + importFolders, pageFiles(), FolderWatch::AllBelow,
              [this](const QStringList&, bool) { reload(); })
{
}

PageReload::~PageReload() = default;

void PageReload::reload()
{
    auto page = std::make_unique<Page>(m_makeEngine(), m_page);
    m_pageProblem = page->error();
    if (page->root()) {
        // Its engine ends with the page before.
        m_errors.hide();
        m_window->show(std::move(page));
    } else {
        page.reset();
        m_host->showTo(m_window->page()->engine());
        std::fprintf(stderr, "%s\n", qUtf8Printable(m_pageProblem));
    }
    report();
}

void PageReload::report()
{
    QStringList problems = m_serviceProblems;
    if (!m_pageProblem.isEmpty())
        problems.prepend(m_pageProblem);
    if (problems.isEmpty())
        m_errors.hide();
    else
        m_errors.show(m_window->window(), problems.join(QLatin1Char('\n')));
}

} // namespace uiutils::qmltool
