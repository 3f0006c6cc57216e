#pragma once

#include "pdfreading.h"

#include <QPainter>
#include <QPdfWriter>

/// Builders of small PDF files for tests.
namespace samples {

/// A file built object by object, as valid or invalid as a test needs it.
class Sketch
{
public:
    /// PoDoFo does not find a cross-reference stream in a file of less than 512 bytes.
    Sketch()
        : m_bytes("%PDF-1.5\n%" + QByteArray(512, '-') + '\n')
    {
    }

    /// Returns the object's number, counted from 1.
    int add(const QByteArray& body)
    {
        m_offsets += m_bytes.size();
        m_bytes += QByteArray::number(m_offsets.size()) + " 0 obj\n" + body + "\nendobj\n";
        return m_offsets.size();
    }
    int addStream(const QByteArray& keys, const QByteArray& data)
    {
        return add("<<" + keys + "/Length " + QByteArray::number(data.size()) + ">>stream\n" + data
                + "\nendstream");
    }
    /// Catalog, pages and one page: the objects 1 to 3.
    Sketch& addPage()
    {
        add("<</Type/Catalog/Pages 2 0 R>>");
        add("<</Type/Pages/Kids[3 0 R]/Count 1/MediaBox[0 0 200 100]>>");
        add("<</Type/Page/Parent 2 0 R>>");
        return *this;
    }

    int size() const { return m_bytes.size(); }
    int count() const { return m_offsets.size(); }

    /// The table in the form of a stream with 1, 2 and 1 bytes in each row.
    QByteArray binaryTable() const
    {
        QByteArray rows("\0\0\0\xff", 4);
        for (int offset : m_offsets)
            rows += QByteArray("\1", 1) + char(offset >> 8) + char(offset) + '\0';
        return rows;
    }
    QByteArray table() const
    {
        QByteArray text = "xref\n0 " + QByteArray::number(count() + 1) + "\n0000000000 65535 f \n";
        for (int offset : m_offsets)
            text += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
        return text;
    }
    QByteArray finished(const QByteArray& trailer = QByteArray()) const
    {
        return finishedWith(table() + "trailer\n<</Size " + QByteArray::number(count() + 1) + "/Root 1 0 R"
                + trailer + ">>\n");
    }
    QByteArray finishedWith(const QByteArray& tableAndTrailer) const
    {
        return m_bytes + tableAndTrailer + "startxref\n" + QByteArray::number(m_bytes.size()) + "\n%%EOF\n";
    }
    /// Ended as the library does: by a table in the form of a stream, which lists itself too.
    QByteArray finishedByStream(const QByteArray& trailer, const QByteArray& rowsToAdd = QByteArray()) const
    {
        Sketch sketch = *this;
        sketch.m_offsets += size();
        const QByteArray rows = sketch.binaryTable() + rowsToAdd;
        sketch.m_offsets.removeLast();
        sketch.addStream("/Type/XRef/Root 1 0 R/W[1 2 1]/Size " + QByteArray::number(rows.size() / 4) + trailer, rows);
        return sketch.finishedAt(size());
    }
    /// Ended with the entries of its last object, a stream that begins at `table`.
    QByteArray finishedAt(int table) const
    {
        return m_bytes + "startxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    }

private:
    QByteArray m_bytes;
    QVector<int> m_offsets;
};

/// One page, and document information with these entries.
inline QByteArray described(const QByteArray& info)
{
    Sketch sketch;
    sketch.addPage().add("<<" + info + ">>");
    return sketch.finished("/Info 4 0 R");
}
/// The same in the form that the library writes.
inline QByteArray describedByStream(const QByteArray& info)
{
    Sketch sketch;
    sketch.addPage().add("<<" + info + ">>");
    return sketch.finishedByStream("/Info 4 0 R");
}

inline void print(const QString& path, int pages)
{
    QPdfWriter writer(path);
    writer.setTitle("Printed");
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        for (int line = 0; line < 40; ++line)
            painter.drawText(200, 200 + 250 * line, QString("Page %1, line %2: 0.25 dB").arg(page).arg(line));
    }
}

} // namespace samples
