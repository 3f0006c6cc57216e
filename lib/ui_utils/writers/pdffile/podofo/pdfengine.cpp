#include "writers/pdffile/pdfengine_p.h"

#include "writers/pdffile/podofo/pdfdocument_p.h"

#include <utility>

namespace uiutils::podofo {

namespace {

class LoadedDocument final : public pdf::DescribedFile
{
public:
    explicit LoadedDocument(std::unique_ptr<PoDoFo::PdfMemDocument> document)
        : m_document(std::move(document))
    {
    }

    QString entry(const QString& key) const override
    {
        QString value;
        QString error;
        guarded(&error, [&] { value = textOf(info().GetIndirectKey(PoDoFo::PdfName(key.toStdString()))); });
        return value;
    }

    bool setEntry(const QString& key, const QString& value, QString* error) override
    {
        return guarded(error, [&] {
            const PoDoFo::PdfName name(key.toStdString());
            info().GetDictionary().AddKey(name, stringOf(value));
        });
    }

    QByteArray save(QString* error) override { return podofo::save(*m_document, error); }

private:
    PoDoFo::PdfObject& info() const { return *m_document->GetInfo()->GetObject(); }

    std::unique_ptr<PoDoFo::PdfMemDocument> m_document;
};

class PodofoEngine final : public pdf::Engine
{
public:
    std::unique_ptr<pdf::DescribedFile> load(const QByteArray& contents, QString* error) const override
    {
        auto document = podofo::load(contents, error);
        return document ? std::make_unique<LoadedDocument>(std::move(document)) : nullptr;
    }

    QString errorText(int code) const override { return podofo::errorText(code); }
};

} // namespace

} // namespace uiutils::podofo

extern "C" Q_DECL_EXPORT const uiutils::pdf::Engine* uiutilsPdfEngine()
{
    static const uiutils::podofo::PodofoEngine engine;
    return &engine;
}
