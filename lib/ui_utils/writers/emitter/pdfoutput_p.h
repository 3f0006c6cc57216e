#pragma once

#include <QByteArray>

#include <deque>

class QIODevice;

namespace uiutils::pdf {

/// The objects of one PDF file, written to a device as they come: nothing is held but where each of them is.
///
/// Objects that are not streams are compressed together, as files of version 1.5 and later may have them.
class PdfOutput
{
public:
    /// The device must be open and outlive the output.
    explicit PdfOutput(QIODevice* device);
    Q_DISABLE_COPY_MOVE(PdfOutput)

    /// A number for an object that is written later.
    int reserve();

    void write(int object, const QByteArray& body);
    /// For an object that readers of the file's end must find without inflating anything.
    void writePlain(int object, const QByteArray& body);

    enum Filter { Deflated, AsIs };
    /// `entries` are those of the stream's dictionary besides length and filter.
    void writeStream(int object, const QByteArray& entries, const QByteArray& data, Filter filter = Deflated);

    /// Writes what is left, and the table of objects with the file's identifier. False if the device did not take all.
    bool finish(int catalog, int information, const QByteArray& id);

    /// Whether the device did not take something. What follows is not written.
    bool hasFailed() const { return m_hasFailed; }

private:
    struct Place
    {
        /// Of a plain object its offset, of another the number of the object stream.
        quint32 at = 0;
        /// In the object stream, or `plain`, or `missing`.
        quint16 index = missing;
    };
    static constexpr quint16 missing = 0xffff;
    static constexpr quint16 plain = 0xfffe;

    void put(const QByteArray& bytes);
    void beginPlain(int object);
    void putStream(int object, const QByteArray& entries, const QByteArray& stored);
    void flushObjects();
    QByteArray table() const;

    QIODevice* m_device;
    quint32 m_offset = 0;
    bool m_hasFailed = false;
    // A vector would be copied when it grows.
    std::deque<Place> m_places;
    // The object stream that is being filled.
    int m_streamNumber = 0;
    int m_streamCount = 0;
    QByteArray m_streamNumbers;
    QByteArray m_streamBodies;
};

} // namespace uiutils::pdf
