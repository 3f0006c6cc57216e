#pragma once

#include "writers/emitter/fontprogram_p.h"

#include <QMap>
#include <QtEndian>

/// Fonts made of tables, sound ones and others.
namespace fontsamples {

using Tables = QMap<QByteArray, QByteArray>;

inline QByteArray u16(int number)
{
    return QByteArray(1, char(number >> 8)) + char(number);
}

inline QByteArray u32(quint32 number)
{
    return u16(int(number >> 16)) + u16(int(number & 0xffff));
}

inline QByteArray patched(QByteArray table, int at, const QByteArray& bytes)
{
    return table.replace(at, bytes.size(), bytes);
}

inline Tables tablesOf(const QRawFont& font)
{
    Tables tables;
    for (const char* tag : {"OS/2", "cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name", "post"})
        tables.insert(tag, font.fontTable(tag));
    return tables;
}

inline uiutils::pdf::FontTables access(const Tables& tables)
{
    return [tables](const char* tag) { return tables.value(tag); };
}

/// One face of a file; its tables begin `before` bytes after the beginning of the file.
inline QByteArray face(const Tables& tables, int before = 0)
{
    QByteArray directory = (tables.contains("CFF ") ? QByteArray("OTTO") : u32(0x10000)) + u16(tables.size()) + u32(0) + u16(0);
    QByteArray bodies;
    for (auto table = tables.begin(); table != tables.end(); ++table) {
        const int at = before + 12 + tables.size() * 16 + bodies.size();
        directory += table.key() + u32(0) + u32(quint32(at)) + u32(quint32(table->size()));
        bodies += *table + QByteArray(3 - (table->size() + 3) % 4, '\0');
    }
    return directory + bodies;
}

inline QByteArray collection(const Tables& first, const Tables& second)
{
    constexpr int header = 20;
    const QByteArray face1 = face(first, header);
    return "ttcf" + u32(0x10000) + u32(2) + u32(header) + u32(quint32(header + face1.size())) + face1
        + face(second, header + face1.size());
}

inline QByteArray names(const QString& family, const QString& postScriptName)
{
    QByteArray records = u16(0) + u16(3) + u16(6 + 3 * 12);
    QByteArray texts;
    const QMap<int, QString> entries {{1, family}, {2, QStringLiteral("Regular")}, {6, postScriptName}};
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        records += u16(3) + u16(1) + u16(0x409) + u16(entry.key()) + u16(entry->size() * 2) + u16(texts.size());
        for (const QChar c : *entry)
            texts += u16(c.unicode());
    }
    return records + texts;
}

/// The font shows sixty-four characters from this one on by its glyphs 36 and further.
inline QByteArray cmap(quint32 character)
{
    const QByteArray group = u32(character) + u32(character + 63) + u32(36);
    return u16(0) + u16(1) + u16(3) + u16(10) + u32(12) + u16(12) + u16(0) + u32(28) + u32(0) + u32(1) + group;
}

/// A list of objects, as CFF has it.
inline QByteArray index(const QVector<QByteArray>& objects)
{
    QByteArray offsets = u16(objects.size()) + char(4) + u32(1);
    QByteArray bodies;
    for (const QByteArray& object : objects) {
        bodies += object;
        offsets += u32(quint32(bodies.size() + 1));
    }
    return offsets + bodies;
}

inline QByteArray number(int value)
{
    return char(29) + u32(quint32(value));
}

/// A box that is wider with each glyph.
inline QByteArray charString(int glyph)
{
    const auto step = [](int value, char direction) { return char(28) + u16(value) + direction; };
    return char(28) + u16(0) + step(10, 21) + step(100 + glyph, 6) + step(700, 7) + step(-100 - glyph, 6) + char(14);
}

/// The glyphs after 0 have these CIDs; if `isCidKeyed` is false, the first names of the standard.
inline QByteArray cff(const QVector<int>& cids, bool isCidKeyed)
{
    QByteArray charset(1, '\0');
    QVector<QByteArray> glyphs {charString(0)};
    for (const int cid : cids) {
        charset += u16(cid);
        glyphs.append(charString(glyphs.size()));
    }
    const QByteArray fdSelect = char(3) + u16(1) + u16(0) + char(0) + u16(glyphs.size());
    const QByteArray charStrings = index(glyphs);
    const QByteArray head = QByteArray("\1\0\4\4", 4) + index({"Sample"});
    const QByteArray tail = index({"Adobe", "Sample"}) + u16(0);
    // The lengths are the same with all offsets, so that a first pass with zeros says where everything lies.
    const auto topDict = [&](int at) {
        const int select = at + charset.size() + charStrings.size();
        const QByteArray keyed = number(391) + number(392) + number(0) + "\14\36" + number(select) + "\14\45"
            + number(select + fdSelect.size()) + "\14\44";
        const QByteArray plain = number(0) + number(select) + char(18);
        return index({(isCidKeyed ? keyed : QByteArray()) + number(isCidKeyed ? at : 0) + char(15) + number(at + charset.size()) + char(17)
            + (isCidKeyed ? QByteArray() : plain)});
    };
    const int at = head.size() + topDict(0).size() + tail.size();
    const QByteArray fontDicts = index({number(0) + number(at) + char(18)});
    return head + topDict(at) + tail + charset + charStrings + (isCidKeyed ? fdSelect + fontDicts : QByteArray());
}

/// A font with these outlines; the rest comes from `base`. Each glyph is a unit wider than the one before it.
inline Tables cffFont(Tables base, const QByteArray& outlines, int glyphCount)
{
    QByteArray widths;
    for (int glyph = 0; glyph < glyphCount; ++glyph)
        widths += u16(300 + glyph) + u16(0);
    base.remove("glyf");
    base.remove("loca");
    base.insert("CFF ", outlines);
    base.insert("maxp", u32(0x5000) + u16(glyphCount));
    base.insert("hmtx", widths);
    base.insert("head", patched(base.value("head"), 18, u16(1000)));
    base.insert("hhea", patched(base.value("hhea"), 34, u16(glyphCount)));
    return base;
}

} // namespace fontsamples
