#include "writers/emitter/fonts/cffnumbers_p.h"

#include "writers/emitter/fonttable_p.h"

#include <QtEndian>

namespace uiutils::fonts {

namespace {

using pdf::FontTable;

/// A list of objects: where the first one lies, and where the list ends.
struct Index
{
    int count;
    qint64 first;
    qint64 firstEnd;
    qint64 end;
};

Index indexAt(const FontTable& cff, qint64 at)
{
    const int count = cff.u16(at);
    if (count == 0)
        return {0, at + 2, at + 2, at + 2};
    const int size = cff.u8(at + 2);
    const qint64 base = at + 3 + qint64(count + 1) * size - 1;
    const auto object = [&](int i) {
        quint32 offset = 0;
        for (int byte = 0; byte < size; ++byte)
            offset = offset << 8 | cff.u8(at + 3 + qint64(i) * size + byte);
        return base + offset;
    };
    return {count, object(0), object(1), object(count)};
}

struct TopDict
{
    bool isCidKeyed = false;
    qint64 charset = 0;
    qint64 charStrings = 0;
};

constexpr int escape = 12;

/// The length of what begins with this byte.
int tokenLength(const FontTable& cff, qint64 at)
{
    const int byte = cff.u8(at);
    if (byte == 28)
        return 3;
    if (byte == 29)
        return 5;
    if (byte == 30) {
        int length = 2;
        while ((cff.u8(at + length - 1) & 0xf) != 0xf && at + length < cff.size())
            ++length;
        return length;
    }
    return byte == escape || byte >= 247 ? 2 : 1;
}

/// Of a whole number; others do not matter here.
int operandAt(const FontTable& cff, qint64 at)
{
    const int byte = cff.u8(at);
    if (byte == 28)
        return cff.i16(at + 1);
    if (byte == 29)
        return cff.i32(at + 1);
    if (byte >= 251)
        return -(byte - 251) * 256 - cff.u8(at + 1) - 108;
    return byte >= 247 ? (byte - 247) * 256 + cff.u8(at + 1) + 108 : byte - 139;
}

TopDict topDict(const FontTable& cff, qint64 begin, qint64 end)
{
    constexpr int charset = 15;
    constexpr int charStrings = 17;
    constexpr int registryOrderingSupplement = 30;
    TopDict dict;
    int operand = 0;
    for (qint64 at = begin; at < qMin(end, cff.size()); at += tokenLength(cff, at)) {
        const int byte = cff.u8(at);
        if (byte == charset)
            dict.charset = operand;
        else if (byte == charStrings)
            dict.charStrings = operand;
        else if (byte == escape && cff.u8(at + 1) == registryOrderingSupplement)
            dict.isCidKeyed = true;
        else
            operand = operandAt(cff, at);
    }
    return dict;
}

void append16(QByteArray* bytes, int number)
{
    bytes->append(char(number >> 8)).append(char(number));
}

/// A list that gives each glyph after 0 its own number. It is never longer than another one of the same format.
QByteArray identity(int format, int glyphCount)
{
    const int perRange = format == 0 ? 1 : format == 1 ? 256 : 65536;
    QByteArray list(1, char(format));
    for (int glyph = 1; glyph < glyphCount; glyph += perRange) {
        const int left = qMin(perRange, glyphCount - glyph) - 1;
        append16(&list, glyph);
        if (format == 1)
            list.append(char(left));
        else if (format == 2)
            append16(&list, left);
    }
    return list;
}

} // namespace

bool numberByGlyphs(QByteArray* bytes)
{
    constexpr int predefinedCharsets = 3;
    const FontTable cff(*bytes);
    const Index names = indexAt(cff, cff.u8(2));
    const Index dicts = indexAt(cff, names.end);
    const TopDict dict = topDict(cff, dicts.first, dicts.firstEnd);
    const int glyphCount = cff.u16(dict.charStrings);
    if (dict.charStrings <= 0 || glyphCount == 0)
        return false;
    if (!dict.isCidKeyed || glyphCount == 1)
        return true;
    const int format = cff.u8(dict.charset);
    if (dict.charset < predefinedCharsets || format > 2)
        return false;
    const QByteArray list = identity(format, glyphCount);
    if (dict.charset > cff.size() - list.size())
        return false;
    bytes->replace(int(dict.charset), list.size(), list);
    return true;
}

} // namespace uiutils::fonts
