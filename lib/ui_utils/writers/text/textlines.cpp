#include "writers/text/textlines_p.h"

#include "base/directmarkup_p.h"
#include "base/plaintext_p.h"

#include <algorithm>

namespace uiutils {

void TextLines::put(int column, QStringView piece, int width)
{
    if (piece.isEmpty())
        return;
    const int blanks = qMax(0, column - m_column);
    const int end = m_text.size();
    m_text.resize(end + blanks + int(piece.size()));
    QChar* const place = m_text.data() + end;
    std::fill_n(place, blanks, QLatin1Char(' '));
    std::copy(piece.begin(), piece.end(), place + blanks);
    m_column += blanks + width;
}

void TextLines::endLine()
{
    m_text += QLatin1Char('\n');
    m_column = 0;
}

void TextLines::putRule(int column, int length, QLatin1Char letter)
{
    put(column, QString(length, letter), length);
}

int TextLines::putText(QStringView text, int width, int begin, int hanging)
{
    int longest = 0;
    do {
        const QStringView line = takeLine(text, qMax(1, width - begin));
        const int columns = displayWidth(line);
        put(begin, line, columns);
        endLine();
        longest = qMax(longest, columns);
        begin = hanging;
    } while (!text.isEmpty());
    return longest;
}

void TextLines::expect(qint64 characters)
{
    makeRoom(m_text, characters);
}

} // namespace uiutils
