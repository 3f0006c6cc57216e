#pragma once

#include <QCoreApplication>

namespace uiutils::pdf {

/// The texts about PDF files, under one context for translators.
struct PdfFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(PDFFile)
};

} // namespace uiutils::pdf
