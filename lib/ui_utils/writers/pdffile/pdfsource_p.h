#pragma once

#include <QByteArray>
#include <QVector>

namespace uiutils::pdf {

/// A dictionary of a file: few entries, in their order. Values are as they stand in the file.
class Dictionary
{
public:
    struct Entry
    {
        /// Decoded, without the slash.
        QByteArray name;
        QByteArray value;
    };

    /// Empty if there is none: no value is empty.
    QByteArray value(const QByteArray& name) const;
    /// Adds or replaces an entry.
    void set(const QByteArray& name, const QByteArray& value);
    void remove(const QByteArray& name);

    const QVector<Entry>& entries() const { return m_entries; }

private:
    QVector<Entry> m_entries;
};

/// `<<...>>`, as it stands in a file.
QByteArray sourceOf(const Dictionary& dictionary);

/// A place in the bytes of a file, from which values are taken one after another. The bytes may be anything. Each
/// function first passes over blanks; if what it is to take is not there, it says so, and the place is then of no more
/// use. Comments are not expected.
class Source
{
public:
    /// A position that is not in `bytes` is the end. The bytes must outlive the source.
    explicit Source(const QByteArray& bytes, qint64 position = 0);

    int position() const { return m_position; }

    /// A word such as "obj", which must not go on.
    bool take(const char* word);
    /// Digits, at most 15; -1 if there are none.
    qint64 takeNumber();
    /// The number of an object in a reference, "5 0 R", of generation 0; -1 if it is none.
    int takeReference();
    /// An array of numbers; `numbers` is at most as long as `most`.
    bool takeNumbers(QVector<qint64>* numbers, int most);
    /// No name twice, at most 256 entries, no more than 16 values within each other.
    bool takeDictionary(Dictionary* dictionary);
    /// The beginning of an object of this number and generation 0.
    bool takeObject(qint64 number);
    /// The data of a stream, which the keyword "stream" precedes and "endstream" and "endobj" follow.
    bool takeStream(qint64 length, QByteArray* data);
    /// A string in either form, decoded; null if it is none.
    QByteArray takeString();
    /// Whether the position is `end`.
    bool isAt(int end);

private:
    char at(int position) const;
    void passBlanks();
    int wordEnd() const;
    QByteArray takeName();
    bool passValue(int depth);
    bool passWord();
    bool passArray(int depth);
    bool passDictionary(int depth);
    QByteArray takeLiteral();
    void takeEscape(QByteArray* result);
    QByteArray takeHexadecimal();

    const QByteArray& m_bytes;
    int m_position;
};

} // namespace uiutils::pdf
