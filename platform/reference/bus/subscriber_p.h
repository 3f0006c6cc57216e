#pragma once

#include "changelist_p.h"
#include "protocol_p.h"

#include <QByteArray>
#include <QStringList>

#include <deque>

namespace kiv::bus {

/// What one client was sent and has not acknowledged, and what it still has to hear. Plain bookkeeping.
class Subscriber
{
public:
    quint64 lastSerial() const { return m_serial; }
    /// Whether it keeps up. One that is behind waits until it owes half as much, so that what it missed comes in few
    /// messages.
    bool mayBeSent() const { return !m_isBehind; }
    /// Counts a message of that size and returns its serial.
    quint64 countMessage(int bytes);
    /// Takes back the messages up to that serial. Returns whether it has caught up with enough of them to be sent more.
    bool acknowledge(quint64 serial);

    /// What it still has to hear of.
    ChangeList changes;
    /// The items are others than before: it has to look anew.
    bool isOutdated = false;
    QStringList errors;

private:
    struct Owed
    {
        quint64 serial;
        int bytes;
    };
    quint64 m_serial = 0;
    std::deque<Owed> m_owed;
    int m_owedBytes = 0;
    bool m_isBehind = false;
};

} // namespace kiv::bus
