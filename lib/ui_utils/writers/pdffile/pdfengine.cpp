#include "writers/pdffile/pdfengine_p.h"

#include "base/ownplace_p.h"
#include "writers/pdffile/pdftexts_p.h"
#include "writers/pdffile/wholepdf_p.h"

#include <QLibrary>

namespace uiutils::pdf {

namespace {

/// Found from the place of the library, as the helper that tries files is.
QString engineFile()
{
    return besideOwnFile(
            {QLatin1String("uiutils/" UIUTILS_PDF_ENGINE), QLatin1String("../lib/uiutils/" UIUTILS_PDF_ENGINE)});
}

struct Loaded
{
    Loaded()
    {
        const QString file = engineFile();
        if (file.isEmpty()) {
            error = PdfFileTexts::tr("%1 is not installed").arg(QLatin1String(UIUTILS_PDF_ENGINE));
            return;
        }
        QLibrary library(file);
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
