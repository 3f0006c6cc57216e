#include "subscriber_p.h"

namespace kiv::bus {

quint64 Subscriber::countMessage(int bytes)
{
    m_owed.push_back({++m_serial, bytes});
    m_owedBytes += bytes;
    m_isBehind = !mayBeSent();
    return m_serial;
}

bool Subscriber::acknowledge(quint64 serial)
{
    while (!m_owed.empty() && m_owed.front().serial <= serial) {
        m_owedBytes -= m_owed.front().bytes;
        m_owed.pop_front();
    }
    // One that is behind waits until it owes half as much, so that what it missed comes in few messages.
    if (m_isBehind && m_owed.size() <= mostOwedMessages / 2 && m_owedBytes <= mostOwedBytes / 2)
        m_isBehind = false;
    return !m_isBehind;
}

} // namespace kiv::bus
