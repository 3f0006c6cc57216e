#pragma once

class QImage;

namespace uiutils::pdf {

class PdfOutput;

/// Writes a picture without loss, and its transparency beside it. Returns its object.
int writeImage(PdfOutput& output, const QImage& image);

} // namespace uiutils::pdf
