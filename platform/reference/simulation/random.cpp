#include "random_p.h"

namespace kiv::simulation {

namespace {

/// Every bit of the result depends on every bit of `bits`.
quint64 mixed(quint64 bits)
{
    bits = (bits ^ (bits >> 30U)) * Q_UINT64_C(0xbf58476d1ce4e5b9);
    bits = (bits ^ (bits >> 27U)) * Q_UINT64_C(0x94d049bb133111eb);
    return bits ^ (bits >> 31U);
}

/// Not qHash(), whose result may differ from one start to the next.
quint64 checksum(const QString& text)
{
    quint64 sum = Q_UINT64_C(0xcbf29ce484222325);
    const QByteArray bytes = text.toUtf8();
    for (const char byte : bytes)
        sum = (sum ^ quint64(uchar(byte))) * Q_UINT64_C(0x100000001b3);
    return sum;
}

} // namespace

RandomSequence::RandomSequence(quint64 seed, const QString& name)
    : m_begin(mixed(seed) ^ checksum(name))
{
}

double RandomSequence::at(quint64 index) const
{
    constexpr quint64 stride = Q_UINT64_C(0x9e3779b97f4a7c15);
    // A double holds 53 bits exactly.
    return double(mixed(m_begin + (index + 1) * stride) >> 11U) / double(Q_UINT64_C(1) << 53U);
}

} // namespace kiv::simulation
