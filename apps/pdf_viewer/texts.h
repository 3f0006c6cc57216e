#pragma once

#include <QCoreApplication>

namespace uiutils::viewer {

/// What the program says outside of its pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PdfViewer)
};

} // namespace uiutils::viewer
