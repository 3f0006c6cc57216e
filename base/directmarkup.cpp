#include "base/directmarkup_p.h"

#include "base/xmltext_p.h"

#include <algorithm>

namespace uiutils {

namespace {

/// Space for longer tables is reserved as they grow.
constexpr qint64 mostRoom = qint64(256) * 1024 * 1024;

/// Whether the text may stand in markup unchanged: no character has to be escaped or left out.
bool isDirect(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        const ushort c = character.unicode();
        return c >= 0x20 && c != '<' && c != '>' && c != '&' && c != '"' && (c < 0x7f || (c >= 0xa0 && c < 0xd800));
    });
}

/// Readers of markup take white space in a value for blanks, unless it is escaped.
QString escapedValue(const QString& value)
{
    QString escaped = markupText(value).toHtmlEscaped();
    escaped.replace(QLatin1Char('\t'), QLatin1String("&#9;"));
    escaped.replace(QLatin1Char('\n'), QLatin1String("&#10;"));
    escaped.replace(QLatin1Char('\r'), QLatin1String("&#13;"));
    return escaped;
}

} // namespace

void beginLine(QXmlStreamWriter& writer, QString& output, int level)
{
    static const QString deepest = QLatin1Char('\n') + QString(8 * 4, QLatin1Char(' '));
    // Closes the open tag.
    writer.writeCharacters(QString());
    output.append(deepest.constData(), 1 + 4 * qBound(0, level, 8));
}

void appendAttribute(QString& output, const QString& name, const QString& value)
{
    output += QLatin1Char(' ');
    output += name;
    output += QLatin1String("=\"");
    output += isDirect(value) ? value : escapedValue(value);
    output += QLatin1Char('"');
}

void appendDirectText(QString& output, const QString& text)
{
    if (isDirect(text))
        output += text;
    else
        output += markupText(text).toHtmlEscaped();
}

void makeRoom(QString& output, qint64 characters)
{
    const qint64 needed = output.size() + std::min(characters, mostRoom);
    const qint64 capacity = output.capacity();
    if (needed > capacity && needed < 2 * mostRoom)
        output.reserve(int(std::max(needed, capacity + capacity / 2)));
}

} // namespace uiutils
