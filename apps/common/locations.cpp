#include "common/locations.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace uiutils::apps {

QString pdfViewerProgram()
{
    for (const QLatin1String place : {QLatin1String(UIUTILS_PDF_VIEWER_FROM_BIN), QLatin1String("pdf_viewer")}) {
        const QFileInfo viewer(QCoreApplication::applicationDirPath() + QLatin1Char('/') + place);
        if (viewer.isFile() && viewer.isExecutable())
            return viewer.canonicalFilePath();
    }
    return QString();
}

} // namespace uiutils::apps
