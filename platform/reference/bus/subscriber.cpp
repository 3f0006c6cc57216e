#include "subscriber_p.h"

namespace kiv::bus {

quint64 Subscriber::countMessage(int bytes)
{
    m_owed.push_back({++m_serial, bytes});
    m_owedBytes += bytes;
    m_isBehind = m_isBehind || m_owed.size() >= mostOwedMessages || m_owedBytes >= mostOwedBytes;
    return m_serial;
}

bool Subscriber::acknowledge(quint64 serial)
{
    while (!m_owed.empty() && m_owed.front().serial <= serial) {
        m_owedBytes -= m_owed.front().bytes;
        m_owed.pop_front();
    }
    if (m_isBehind && m_owed.size() <= mostOwedMessages / 2 && m_owedBytes <= mostOwedBytes / 2)
        m_isBehind = false;
    return mayBeSent();
}

} // namespace kiv::bus
