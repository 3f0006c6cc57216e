#pragma once

#include "connection_p.h"

#include <QTimer>

namespace kiv::bus {

/// A connection to the bus that KIV_BUS names, made again, with growing pauses, whenever it is lost.
class ReconnectingBus final : public QObject
{
    Q_OBJECT

public:
    explicit ReconnectingBus(QObject* parent = nullptr);

    /// The same object for good.
    Connection* connection() { return &m_connection; }
    Bus bus() const { return m_bus; }
    /// Begins; nothing after the first time.
    void start();

Q_SIGNALS:
    /// Connected, for the first time or once more.
    void ready();
    void lost();
    /// It could not be connected, in words; it is tried again.
    void failed(const QString& reason);

private:
    void connectNow();
    void onReady();
    void onLost();
    void tryLater(const QString& reason);

    const Bus m_bus;
    Connection m_connection;
    QTimer m_pause;
    int m_pauseMs = 0;
    bool m_wasReady = false;
};

} // namespace kiv::bus
