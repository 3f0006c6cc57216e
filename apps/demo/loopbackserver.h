#pragma once

#include <QTcpServer>

namespace uiutils::demo {

/// The far end of the measurement: echoes messages and swallows transfers on a free port of the loopback
/// address.
///
/// Everything runs on the event loop of the thread that the server lives in. A connection that sends anything
/// else than requests is dropped.
class LoopbackServer : public QTcpServer
{
    Q_OBJECT

public:
    explicit LoopbackServer(QObject* parent = nullptr);

    /// Listens on a free port; false, with the reason in errorString(), when there is none.
    bool listenOnLoopback();

private:
    void serveNext();
};

} // namespace uiutils::demo
