#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace uiutils {

/// A number and its unit, as parts of one text; both are empty if the text is not a number.
struct Quantity
{
    QStringView number;
    QStringView unit;
};

/// The parts of "-3", "1,204.5 m", "1e-9", "99.5%". A text is a number if only one number can be meant by it: "1,204"
/// is none, because half of the world writes one and a bit so.
Quantity quantityOf(QStringView text);

/// Writes the lines of a CSV file (RFC 4180), in UTF-8.
class CsvLines
{
public:
    CsvLines(bool hasDecimalComma, bool hasByteOrderMark);

    /// A text, which spreadsheets do not take for a formula: see docs/csv-report.md. It must be a plainText().
    void putText(QStringView text);
    /// A number in the notation of quantityOf().
    void putNumber(QStringView number);
    /// Empty if it is not finite.
    void putNumber(double number);
    void putNothing() { startField(); }
    void endLine();

    const QByteArray& bytes() const { return m_bytes; }

private:
    void startField();
    QString harmless(const QString& text) const;

    char m_separator;
    char m_decimal;
    bool m_isLineEmpty = true;
    QByteArray m_bytes;
};

} // namespace uiutils
