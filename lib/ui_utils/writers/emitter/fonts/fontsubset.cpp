#include "writers/emitter/fontprogram_p.h"

#include "writers/emitter/fonts/cffnumbers_p.h"

#include <hb-subset.h>
#include <hb.h>

#include <map>
#include <memory>

namespace uiutils::fonts {

namespace {

using pdf::FontProgram;
using pdf::FontTables;

template<auto function> struct Destroys
{
    template<typename Object> void operator()(Object* object) const { function(object); }
};

using Blob = std::unique_ptr<hb_blob_t, Destroys<hb_blob_destroy>>;
using Face = std::unique_ptr<hb_face_t, Destroys<hb_face_destroy>>;
using Input = std::unique_ptr<hb_subset_input_t, Destroys<hb_subset_input_destroy>>;

bool isEmbedded(hb_tag_t tag, FontProgram::Kind kind)
{
    switch (tag) {
    case HB_TAG('h', 'e', 'a', 'd'):
    case HB_TAG('h', 'h', 'e', 'a'):
    case HB_TAG('h', 'm', 't', 'x'):
    case HB_TAG('m', 'a', 'x', 'p'):
        return true;
    case HB_TAG('g', 'l', 'y', 'f'):
    case HB_TAG('l', 'o', 'c', 'a'):
        return kind == FontProgram::TrueType;
    case HB_TAG('C', 'F', 'F', ' '):
        return kind == FontProgram::Cff;
    default:
        return false;
    }
}

/// Every table is fetched once and stays until the subset is made: the subsetter asks for it several times, and reads
/// it after it has released it.
struct Source
{
    const FontTables& tables;
    FontProgram::Kind kind;
    std::map<hb_tag_t, Blob> fetched;
};

Blob blobOf(const QByteArray& bytes)
{
    auto* owned = new QByteArray(bytes);
    const auto release = [](void* data) { delete static_cast<QByteArray*>(data); };
    return Blob(hb_blob_create(owned->constData(), uint(owned->size()), HB_MEMORY_MODE_READONLY, owned, release));
}

/// Other tables would only cost time, or add the glyphs to which they lead.
hb_blob_t* fetchTable(hb_face_t* /*face*/, hb_tag_t tag, void* data)
{
    Source& source = *static_cast<Source*>(data);
    if (!isEmbedded(tag, source.kind))
        return hb_blob_get_empty();
    Blob& blob = source.fetched[tag];
    if (!blob) {
        char name[5] = {};
        hb_tag_to_string(tag, name);
        blob = blobOf(source.tables(name));
    }
    return hb_blob_reference(blob.get());
}

Input inputOf(const QVector<quint16>& glyphs)
{
    Input input(hb_subset_input_create_or_fail());
    if (!input)
        return input;
    hb_subset_input_set_flags(
            input.get(), HB_SUBSET_FLAGS_RETAIN_GIDS | HB_SUBSET_FLAGS_NO_HINTING | HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
    hb_set_t* set = hb_subset_input_glyph_set(input.get());
    for (const quint16 glyph : glyphs)
        hb_set_add(set, glyph);
    return input;
}

QByteArray bytesOf(const Blob& blob)
{
    uint length = 0;
    const char* data = hb_blob_get_data(blob.get(), &length);
    return QByteArray(data, int(length));
}

QByteArray tableOf(const Face& face, hb_tag_t tag)
{
    return bytesOf(Blob(hb_face_reference_table(face.get(), tag)));
}

QByteArray programOf(const Face& subset, FontProgram::Kind kind)
{
    if (kind == FontProgram::TrueType)
        return bytesOf(Blob(hb_face_reference_blob(subset.get())));
    QByteArray cff = tableOf(subset, HB_TAG('C', 'F', 'F', ' '));
    return numberByGlyphs(&cff) ? cff : QByteArray();
}

} // namespace

} // namespace uiutils::fonts

extern "C" Q_DECL_EXPORT void uiutilsFontSubset(
        const uiutils::pdf::FontTables& tables, const QVector<quint16>& glyphs, uiutils::pdf::FontProgram* program)
{
    using namespace uiutils::fonts;
    Source source {tables, program->kind, {}};
    const Face face(hb_face_create_for_tables(fetchTable, &source, nullptr));
    const Input input = inputOf(glyphs);
    const Face subset(input ? hb_subset_or_fail(face.get(), input.get()) : nullptr);
    if (subset)
        program->data = programOf(subset, program->kind);
}
