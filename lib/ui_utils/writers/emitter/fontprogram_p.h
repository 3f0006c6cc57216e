#pragma once

#include <QByteArray>
#include <QRawFont>
#include <QString>
#include <QVector>

#include <functional>

/// What a PDF file says of a font. What comes from a font is not trusted: whatever its tables hold, the answers are
/// finite and belong to glyphs that the font has.
namespace uiutils::pdf {

/// A table of a font by its tag of four characters; empty if the font has none. Large tables are copied each time.
using FontTables = std::function<QByteArray(const char* tag)>;

FontTables tablesOf(const QRawFont& font);

/// The same for all sizes of a face: its names, and headers, one of which holds a check sum.
QByteArray faceOf(const QRawFont& font);

/// Whether a font may and can be embedded.
enum class Embedding {
    Allowed,
    /// The outlines depend on axes, and what is drawn may not be the default instance.
    Variable,
    /// Not a font of tables, such as Type 1.
    NoTables,
    /// Pictures only, such as colour emoji.
    NoOutlines,
    /// The maker forbids it.
    Forbidden,
    Broken,
};

/// Judged from small tables. For a font with CFF outlines that table is copied once too, because nothing else says that
/// there is one.
Embedding embeddingOf(const FontTables& tables);
/// The same, judged once for each face in a process. May be called in any thread.
Embedding embeddingOf(const QRawFont& font);

/// A font's data as a PDF file embeds it.
struct FontProgram
{
    enum Kind {
        /// It cannot be made; `error` says why.
        None,
        /// For FontFile2: a font file with what outlines and widths need.
        TrueType,
        /// For FontFile3 with the subtype CIDFontType0C: a CFF table. Its CIDs are the numbers of the glyphs.
        Cff,
    };

    Kind kind = None;
    QByteArray data;
    /// What stands before the font's name, such as "ABCDEF+": the same for the same glyphs. Empty if all are embedded.
    QByteArray tag;
    QString error;
};

/// The program of a font whose embedding is allowed, with `glyphs` and 0; all glyphs if the font must not be divided.
/// They keep their numbers; those that the font lacks are left out. The subsetter's library is loaded when it is first
/// needed, and large tables are in memory only meanwhile.
FontProgram fontProgram(const FontTables& tables, const QVector<quint16>& glyphs);
FontProgram fontProgram(const QRawFont& font, const QVector<quint16>& glyphs);

} // namespace uiutils::pdf

extern "C" {
/// What the library with the subsetter exports. It keeps the numbers of the glyphs and drops hints. `glyphs` are
/// sorted, and the font has them. The data stays empty if it cannot be made.
using UiUtilsFontSubset = void (*)(
        const uiutils::pdf::FontTables& tables, const QVector<quint16>& glyphs, uiutils::pdf::FontProgram* program);
}
