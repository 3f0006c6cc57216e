#pragma once

#include "rooms.h"
#include "timing.h"

namespace bench {

QVector<Result> bindingCases(int runs);
QVector<Result> documentCases(int runs);
QVector<Result> htmlCases(int runs);
QVector<Result> xmlCases(int runs);
QVector<Result> pdfCases(int runs);
/// What the program does in a process of its own for pdfCases(): it prints by how many bytes the first file made it
/// grow.
constexpr char firstFileArgument[] = "first-file";
int printFirstFile();
/// The same for a document that is built and written to a file: it prints the most memory that it had.
constexpr char wholeDocumentArgument[] = "whole-document";
int writeWholeDocument();
QVector<Result> plotCases(int runs);
QVector<Result> livePlotCases(int runs);
QVector<Result> textCases(int runs);
QVector<Result> localCases(int runs);
QVector<Result> pdfFileCases(int runs);
QVector<Result> reportCases(int runs);

} // namespace bench
