#include "problem.h"

#include "documentbytes.h"
#include "pdfpages.h"
#include "texts.h"

#include <QLocale>

namespace uiutils::viewer {

QString descriptionOf(Problem problem)
{
    switch (problem) {
    case Problem::None:
        return QString();
    case Problem::Missing:
        return Texts::tr("There is no such file.");
    case Problem::NoFile:
        return Texts::tr("This is not a file.");
    case Problem::Unreadable:
        return Texts::tr("The file cannot be read.");
    case Problem::TooLarge:
        return Texts::tr("The file holds more than %1 MiB, which is more than this unit can show.")
                .arg(mostBytes / (1024 * 1024));
    case Problem::NotPdf:
        return Texts::tr("This is not a PDF file.");
    case Problem::Damaged:
        return Texts::tr("The file is damaged or incomplete.");
    case Problem::Locked:
        return Texts::tr("The file is encrypted and can only be opened with a password.");
    case Problem::NoPages:
        return Texts::tr("The file has no pages.");
    case Problem::TooManyPages:
        return Texts::tr("The file has more than %1 pages, which is more than this unit can show.")
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
        return Texts::tr(
                "It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or "
                "save the report again.");
    case Problem::Unreadable:
        return Texts::tr("Check that the drive is in place and that you may read the file.");
    case Problem::TooLarge:
    case Problem::TooManyPages:
        return Texts::tr("Copy it to a computer and open it there.");
    case Problem::NoFile:
    case Problem::NotPdf:
        return Texts::tr("Choose a file that was saved as PDF.");
    case Problem::Damaged:
    case Problem::NoPages:
        return Texts::tr("Save the report again, or copy the file again from where it came.");
    case Problem::Locked:
        return Texts::tr("Open it on a computer, or ask whoever made it for a file without a password.");
    }
    return QString();
}

} // namespace uiutils::viewer
