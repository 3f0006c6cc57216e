#pragma once

#include <QByteArray>
#include <QHash>
#include <QRawFont>
#include <QString>
#include <QVector>

namespace uiutils::pdf {

class PdfOutput;

/// A font of a file: which of its glyphs the pages show, and which text each stands for. Codes in the content of pages
/// are the numbers of the glyphs, in two bytes.
class EmbeddedFont
{
public:
    /// `font` must be one whose embedding is allowed. `object` and `name` are how pages refer to it.
    EmbeddedFont(const QRawFont& font, int object, const QByteArray& name);

    const QRawFont& raw() const { return m_font; }
    int object() const { return m_object; }
    const QByteArray& name() const { return m_name; }

    /// Notes that a page shows the glyph for the text. Readers copy for it the text of its first use; returns whether
    /// that is this one.
    bool use(quint16 glyph, const QString& text);
    /// The same for a glyph of the font's own table of characters.
    void use(quint16 glyph, QChar character)
    {
        if (m_characters.at(glyph) == 0)
            m_characters[glyph] = character.unicode();
    }

    /// The descriptor, the glyphs, their widths and their texts. Returns the reason if the font cannot be divided or
    /// read; the file is of no use then.
    QString write(PdfOutput& output) const;

private:
    QVector<quint16> glyphs() const;
    QString textOf(quint16 glyph) const;
    QByteArray toUnicode(const QVector<quint16>& glyphs) const;

    QRawFont m_font;
    int m_object;
    QByteArray m_name;
    // For each glyph the character that it stands for, 0 for one that is not used or stands for more than one.
    QVector<quint16> m_characters;
    QHash<quint16, QString> m_texts;
};

} // namespace uiutils::pdf
