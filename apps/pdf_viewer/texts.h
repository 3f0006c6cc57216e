#pragma once

#include <QCoreApplication>

namespace uiutils::viewer {

/// The program's texts outside its pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PdfViewer)
};

} // namespace uiutils::viewer
