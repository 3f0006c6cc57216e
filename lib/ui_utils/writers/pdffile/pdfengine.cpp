#include "writers/pdffile/pdfengine_p.h"

#include "base/ownplace_p.h"
#include "writers/pdffile/pdftexts_p.h"
#include "writers/pdffile/wholepdf_p.h"

#include <QFileInfo>
#include <QLibrary>

namespace uiutils::pdf {

namespace {

/// Found from the place of the library, as the helper that tries files is.
QString engineFile()
{
    const QString folder = QFileInfo(ownFile()).path();
    for (const QLatin1String place : {QLatin1String("/uiutils/"), QLatin1String("/../lib/uiutils/")}) {
        const QFileInfo file(folder + place + QLatin1String(UIUTILS_PDF_ENGINE));
        if (file.isFile())
            return file.canonicalFilePath();
    }
    return folder + QLatin1String("/uiutils/" UIUTILS_PDF_ENGINE);
}

struct Loaded
{
    Loaded()
    {
        QLibrary library(engineFile());
        const auto function = reinterpret_cast<UiUtilsPdfEngine>(library.resolve("uiutilsPdfEngine"));
        if (function)
            engine = function();
        else
            error = library.errorString();
    }

    const Engine* engine = nullptr;
    QString error;
};

const Loaded& loaded()
{
    static const Loaded once;
    return once;
}

} // namespace

std::unique_ptr<Document> load(const QByteArray& contents, QString* error)
{
    if (loaded().engine)
        return loaded().engine->load(contents, error);
    *error = loaded().error;
    return nullptr;
}

QByteArray saved(Document& document, QString* error)
{
    const QByteArray contents = document.save(error);
    return !contents.isEmpty() && isWholePdf(contents, error) ? contents : QByteArray();
}

QString errorText(int code)
{
    return loaded().engine ? loaded().engine->errorText(code) : PdfFileTexts::tr("Unknown error");
}

} // namespace uiutils::pdf
