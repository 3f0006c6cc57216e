#include "writers/emitter/embeddedfont_p.h"

#include "writers/emitter/fontmetrics_p.h"
#include "writers/emitter/fontprogram_p.h"
#include "writers/emitter/pdfoutput_p.h"
#include "writers/emitter/pdfsyntax_p.h"

namespace uiutils::pdf {

namespace {

constexpr int glyphNumbers = 0x10000;
/// Entries of one section of a table of texts, as readers limit them.
constexpr int entriesOfASection = 100;

QByteArray hexOf(quint16 number)
{
    return QByteArray::number(number, 16).rightJustified(4, '0');
}

QByteArray hexOf(const QString& text)
{
    QByteArray hex;
    for (const QChar c : text)
        hex += hexOf(c.unicode());
    return hex;
}

/// The widths of glyphs in runs of neighbouring numbers.
QByteArray widthsOf(const QVector<quint16>& glyphs, const QVector<double>& widths)
{
    QByteArray text("[");
    for (int i = 0; i < glyphs.size(); ++i) {
        const bool isNewRun = i == 0 || glyphs.at(i) != glyphs.at(i - 1) + 1;
        if (isNewRun)
            text += (i == 0 ? "" : "]") + QByteArray::number(glyphs.at(i)) + '[';
        else
            text += ' ';
        appendNumber(text, widths.at(i));
    }
    return text + "]]";
}

QByteArray descriptorOf(const FontMetrics& metrics, const QByteArray& name, const FontProgram& program, int file)
{
    QByteArray text
            = "<</Type/FontDescriptor/FontName" + name + "/Flags " + QByteArray::number(metrics.flags) + "/FontBBox[";
    appendNumbers(text, {qreal(metrics.left), qreal(metrics.bottom), qreal(metrics.right), qreal(metrics.top)});
    text += "]/ItalicAngle ";
    appendNumber(text, metrics.italicAngle);
    text += "/Ascent " + QByteArray::number(metrics.ascent) + "/Descent " + QByteArray::number(metrics.descent)
            + "/CapHeight " + QByteArray::number(metrics.capHeight) + "/StemV " + QByteArray::number(metrics.stemWidth);
    text += (program.kind == FontProgram::Cff ? "/FontFile3 " : "/FontFile2 ") + referenceTo(file);
    return text + ">>";
}

} // namespace

EmbeddedFont::EmbeddedFont(const QRawFont& font, int object, const QByteArray& name)
    : m_font(font)
    , m_object(object)
    , m_name(name)
    , m_characters(glyphNumbers)
{
}

bool EmbeddedFont::use(quint16 glyph, const QString& text)
{
    if (m_characters.at(glyph) != 0)
        return text.size() == 1 && text.at(0).unicode() == m_characters.at(glyph);
    const auto it = m_texts.constFind(glyph);
    if (it != m_texts.constEnd())
        return *it == text;
    if (text.size() == 1 && text.at(0).unicode() != 0)
        m_characters[glyph] = text.at(0).unicode();
    else
        m_texts.insert(glyph, text);
    return true;
}

QString EmbeddedFont::textOf(quint16 glyph) const
{
    return m_characters.at(glyph) != 0 ? QString(QChar(m_characters.at(glyph))) : m_texts.value(glyph);
}

QVector<quint16> EmbeddedFont::glyphs() const
{
    QVector<quint16> used;
    for (int glyph = 0; glyph < glyphNumbers; ++glyph) {
        if (m_characters.at(glyph) != 0 || m_texts.contains(quint16(glyph)))
            used += quint16(glyph);
    }
    return used;
}

QByteArray EmbeddedFont::toUnicode(const QVector<quint16>& glyphs) const
{
    QByteArray map("/CIDInit/ProcSet findresource begin 12 dict begin begincmap\n"
                   "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
                   "/CMapName/Adobe-Identity-UCS def/CMapType 2 def\n"
                   "1 begincodespacerange<0000><ffff>endcodespacerange\n");
    QByteArray section;
    int entries = 0;
    const auto endSection = [&] {
        if (entries > 0)
            map += QByteArray::number(entries) + " beginbfchar\n" + section + "endbfchar\n";
        section.clear();
        entries = 0;
    };
    for (const quint16 glyph : glyphs) {
        const QString text = textOf(glyph);
        if (text.isEmpty())
            continue;
        section += '<' + hexOf(glyph) + "><" + hexOf(text) + ">\n";
        if (++entries == entriesOfASection)
            endSection();
    }
    endSection();
    return map + "endcmap CMapName currentdict/CMap defineresource pop end end";
}

QString EmbeddedFont::write(PdfOutput& output) const
{
    const QVector<quint16> used = glyphs();
    const FontProgram program = fontProgram(m_font, used);
    if (program.kind == FontProgram::None)
        return program.error;
    const FontMetrics metrics = fontMetrics(m_font);
    const bool isCff = program.kind == FontProgram::Cff;
    const QByteArray name = nameOf(program.tag + metrics.postScriptName);

    const int file = output.reserve();
    output.writeStream(file, isCff ? "/Subtype/CIDFontType0C" : "/Length1 " + QByteArray::number(program.data.size()),
            program.data);
    const int descriptor = output.reserve();
    output.write(descriptor, descriptorOf(metrics, name, program, file));
    const int descendant = output.reserve();
    output.write(descendant,
            QByteArray("<</Type/Font/Subtype") + (isCff ? "/CIDFontType0" : "/CIDFontType2/CIDToGIDMap/Identity")
                    + "/BaseFont" + name
                    + "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/FontDescriptor "
                    + referenceTo(descriptor) + "/W" + widthsOf(used, glyphWidths(m_font, used)) + ">>");
    const int texts = output.reserve();
    output.writeStream(texts, {}, toUnicode(used));
    output.write(m_object,
            "<</Type/Font/Subtype/Type0/BaseFont" + name + "/Encoding/Identity-H/DescendantFonts["
                    + referenceTo(descendant) + "]/ToUnicode " + referenceTo(texts) + ">>");
    return QString();
}

} // namespace uiutils::pdf
