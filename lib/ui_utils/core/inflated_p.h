#pragma once

#include <QByteArray>

namespace uiutils {

/// What a zlib or gzip stream contains.
struct Inflated
{
    enum State {
        /// All of it, with the right checksum.
        Complete,
        /// The first bytes: there are more than were wanted.
        Cut,
        /// The first bytes: the rest is damaged or missing.
        Damaged
    };
    State state = Damaged;
    QByteArray bytes;
};

/// At most `most` bytes of what `packed` contains. The memory that this takes follows what is found and not what the
/// stream claims.
Inflated inflated(const QByteArray& packed, int most);

} // namespace uiutils
