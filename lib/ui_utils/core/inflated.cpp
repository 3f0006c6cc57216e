#include "core/inflated_p.h"

#include <zlib.h>

namespace uiutils {

namespace {

/// zlib's largest window, and the form, zlib or gzip, as the stream says.
constexpr int anyForm = MAX_WBITS + 32;

/// What zlib says when the bytes have no more space, or come to their end.
int inflateInto(z_stream& stream, Inflated& result, int most)
{
    constexpr int chunk = 256 * 1024;
    int status = Z_OK;
    while (status == Z_OK && result.bytes.size() < most) {
        const int before = result.bytes.size();
        const int space = qMin(chunk, most - before);
        result.bytes.resize(before + space);
        stream.next_out = reinterpret_cast<Bytef*>(result.bytes.data()) + before;
        stream.avail_out = uInt(space);
        status = ::inflate(&stream, Z_NO_FLUSH);
        result.bytes.chop(int(stream.avail_out));
    }
    return status;
}

/// Whether a stream of which all wanted bytes are there ends with them. Otherwise zlib has another byte, or an error.
int statusAtEnd(z_stream& stream)
{
    Bytef next = 0;
    stream.next_out = &next;
    stream.avail_out = 1;
    return ::inflate(&stream, Z_NO_FLUSH);
}

} // namespace

Inflated inflated(const QByteArray& packed, int most)
{
    Inflated result;
    z_stream stream = {};
    if (::inflateInit2(&stream, anyForm) != Z_OK)
        return result;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.constData()));
    stream.avail_in = uInt(packed.size());
    int status = inflateInto(stream, result, most);
    if (status == Z_OK) {
        status = statusAtEnd(stream);
        if (stream.avail_out == 0)
            result.state = Inflated::Cut;
    }
    if (status == Z_STREAM_END && result.state != Inflated::Cut)
        result.state = Inflated::Complete;
    ::inflateEnd(&stream);
    return result;
}

} // namespace uiutils
