#pragma once

#include <QTcpServer>

namespace uiutils::demo {

/// The server of the measurement: echoes messages and discards transfers on a free port of the loopback address.
///
/// Everything runs on the event loop of the server's thread. A connection that sends anything except requests is
/// closed.
class LoopbackServer : public QTcpServer
{
    Q_OBJECT

public:
    explicit LoopbackServer(QObject* parent = nullptr);

    /// Listens on a free port; false, with the reason in errorString(), on failure.
    bool listenOnLoopback();

private:
    void serveNext();
};

} // namespace uiutils::demo
