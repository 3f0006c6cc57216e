#pragma once

#include <QString>
#include <QStringView>

namespace uiutils {

/// A plain text, written line by line. Blanks are written only before a piece, so that no line ends in one.
class TextLines
{
public:
    /// Puts `piece`, which takes `width` columns, at the column, or after what is there already.
    void put(int column, QStringView piece, int width);
    void endLine();
    /// A line of `length` times `letter`, beginning at `column`.
    void putRule(int column, int length, QLatin1Char letter);
    /// Writes a text of any length from column `begin` to `width`, every line but the first from `hanging`. Returns the
    /// width of the longest line.
    int putText(QStringView text, int width, int begin = 0, int hanging = 0);

    bool isEmpty() const { return m_text.isEmpty(); }
    const QString& text() const { return m_text; }
    /// Reserves memory for that many more characters.
    void expect(qint64 characters);

private:
    QString m_text;
    int m_column = 0;
};

} // namespace uiutils
