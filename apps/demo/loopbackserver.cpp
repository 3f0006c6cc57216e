#include "loopbackserver.h"

#include "loopbackprotocol.h"

#include <QNetworkProxy>
#include <QTcpSocket>

namespace uiutils::demo {

namespace {

/// Serves one client; deleted with its socket.
class Connection : public QObject
{
public:
    explicit Connection(QTcpSocket* socket)
        : QObject(socket)
        , m_socket(socket)
    {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, &QTcpSocket::readyRead, this, &Connection::serve);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

private:
    void serve()
    {
        while (m_socket->bytesAvailable() > 0) {
            if (!m_isInRequest && !readHeader())
                return;
            if (!(m_header.kind == protocol::Echo ? echo() : swallow()))
                return;
            m_isInRequest = false;
        }
    }

    bool readHeader()
    {
        if (m_socket->bytesAvailable() < protocol::headerSize)
            return false;
        if (!protocol::decode(m_socket->read(protocol::headerSize), &m_header)) {
            m_socket->abort();
            return false;
        }
        m_isInRequest = true;
        m_missing = qint64(m_header.payload);
        return true;
    }

    /// True when the request has been answered.
    bool echo()
    {
        if (m_socket->bytesAvailable() < m_missing)
            return false;
        m_socket->write(protocol::encode(m_header) + m_socket->read(m_missing));
        return true;
    }

    bool swallow()
    {
        m_missing -= m_socket->skip(qMin(m_missing, m_socket->bytesAvailable()));
        if (m_missing > 0)
            return false;
        m_socket->write(protocol::encode(m_header));
        return true;
    }

    QTcpSocket* const m_socket;
    bool m_isInRequest = false;
    protocol::Header m_header;
    qint64 m_missing = 0;
};

} // namespace

LoopbackServer::LoopbackServer(QObject* parent)
    : QTcpServer(parent)
{
    setProxy(QNetworkProxy::NoProxy);
    connect(this, &QTcpServer::newConnection, this, &LoopbackServer::serveNext);
}

bool LoopbackServer::listenOnLoopback()
{
    return listen(QHostAddress::LocalHost);
}

void LoopbackServer::serveNext()
{
    while (QTcpSocket* socket = nextPendingConnection())
        new Connection(socket);
}

} // namespace uiutils::demo
