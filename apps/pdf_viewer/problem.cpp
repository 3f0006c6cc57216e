#include "problem.h"

#include "documentbytes.h"
#include "pdfpages.h"

#include <QCoreApplication>
#include <QLocale>

namespace uiutils::viewer {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Problem", text);
}

} // namespace

QString descriptionOf(Problem problem)
{
    switch (problem) {
    case Problem::None:
        return QString();
    case Problem::Missing:
        return tr("There is no such file.");
    case Problem::NoFile:
        return tr("This is not a file.");
    case Problem::Unreadable:
        return tr("The file cannot be read.");
    case Problem::TooLarge:
        return tr("The file holds more than %1 MiB, which is more than this unit shows.")
                .arg(mostBytes / (1024 * 1024));
    case Problem::NotPdf:
        return tr("This is not a PDF file.");
    case Problem::Damaged:
        return tr("The file is damaged or incomplete.");
    case Problem::Locked:
        return tr("The file is encrypted and opens with a password only.");
    case Problem::NoPages:
        return tr("The file has no pages.");
    case Problem::TooManyPages:
        return tr("The file has more than %1 pages, which is more than this unit shows.")
                .arg(QLocale().toString(mostPages));
    }
    return QString();
}

QString adviceOn(Problem problem)
{
    switch (problem) {
    case Problem::None:
        return QString();
    case Problem::Missing:
        return tr(
                "It may have been deleted or moved, or be on a USB stick that was removed. Choose another file, or save the "
                "report again.");
    case Problem::Unreadable:
        return tr("Check that the drive is in place and that you may read the file.");
    case Problem::TooLarge:
    case Problem::TooManyPages:
        return tr("Copy it to a computer and open it there.");
    case Problem::NoFile:
    case Problem::NotPdf:
        return tr("Choose a file that was saved as PDF.");
    case Problem::Damaged:
    case Problem::NoPages:
        return tr("Save the report again, or copy the file again from where it came.");
    case Problem::Locked:
        return tr("Open it on a computer, or ask whoever made it for a file without a password.");
    }
    return QString();
}

} // namespace uiutils::viewer
