#include "writers/pdffile/pdfannotation_p.h"

#include "writers/pdffile/pdfengine_p.h"
#include "writers/pdffile/wholepdf_p.h"

#include <QFile>

namespace uiutils::pdf {

QByteArray annotated(const QString& source, const Annotation& annotation, QString* error)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return QByteArray();
    }
    const QByteArray contents = file.readAll();
    const std::unique_ptr<Document> document = isWholePdf(contents, error) ? load(contents, error) : nullptr;
    return document && document->annotate(annotation, error) ? saved(*document, error) : QByteArray();
}

} // namespace uiutils::pdf
