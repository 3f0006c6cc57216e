#include "writers/pdffile/pdfengine_p.h"

#include "base/ownlibrary_p.h"
#include "writers/pdffile/pdftexts_p.h"
#include "writers/pdffile/wholepdf_p.h"

namespace uiutils::pdf {

namespace {

struct Loaded
{
    Loaded()
    {
        const auto function = reinterpret_cast<UiUtilsPdfEngine>(
                ownLibraryFunction("uiutils", UIUTILS_PDF_ENGINE, "uiutilsPdfEngine", &error));
        if (function)
            engine = function();
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

std::unique_ptr<DescribedFile> load(const QByteArray& contents, QString* error)
{
    if (loaded().engine)
        return loaded().engine->load(contents, error);
    *error = loaded().error;
    return nullptr;
}

QByteArray saved(DescribedFile& document, QString* error)
{
    const QByteArray contents = document.save(error);
    return !contents.isEmpty() && isWholePdf(contents, error) ? contents : QByteArray();
}

QString errorText(int code)
{
    return loaded().engine ? loaded().engine->errorText(code) : PdfFileTexts::tr("Unknown error");
}

} // namespace uiutils::pdf
