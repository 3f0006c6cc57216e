#pragma once

#include "writers/pdffile/pdfsource_p.h"

#include <optional>

namespace uiutils::pdf {

/// A table of objects in the form of a cross-reference stream.
class Table
{
public:
    struct Entry
    {
        enum Kind { Free = 0, Plain = 1, Packed = 2, None = -1 };
        qint64 kind = None;
        /// Where the object is: an offset, or the number of the object stream in which it is packed.
        qint64 place = 0;
        /// The generation; of a packed object the index in its stream.
        qint64 detail = 0;
    };

    /// The table that begins at `position`, if nothing but the end of a file comes after it until `end`. It has at most
    /// 64 MiB in a few sections, and its stream is not encoded in unusual ways.
    static std::optional<Table> read(const QByteArray& contents, qint64 position, int end);

    /// The dictionary of the stream, which is also the file's trailer.
    const Dictionary& keys() const { return m_keys; }
    qint64 position() const { return m_position; }
    /// The number of the stream.
    qint64 number() const { return m_number; }
    /// What the numbers of all objects of the file are below.
    qint64 size() const { return m_size; }
    /// Whether it has an entry for each number.
    bool isComplete() const;
    qint64 entryCount() const { return m_rowCount; }
    /// The numbers that have entries. Meant for tables of few entries.
    QVector<qint64> numbers() const;
    /// Of no kind if the table has none for the number.
    Entry entry(qint64 number) const;

private:
    /// Entries for numbers that follow each other.
    struct Section
    {
        qint64 first;
        qint64 count;
        qint64 row;
    };

    bool readShape();
    bool readSections();
    bool readRows(const QByteArray& data);
    bool removePrediction();
    qint64 rowSize() const { return m_widths.at(0) + m_widths.at(1) + m_widths.at(2); }

    Dictionary m_keys;
    qint64 m_position = 0;
    qint64 m_number = 0;
    qint64 m_size = 0;
    QVector<qint64> m_widths;
    QVector<Section> m_sections;
    qint64 m_rowCount = 0;
    QByteArray m_rows;
};

} // namespace uiutils::pdf
