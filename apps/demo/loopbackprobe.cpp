#include "loopbackprobe.h"

#include "loopbackprotocol.h"
#include "loopbackserver.h"

#include <QHostAddress>
#include <QNetworkProxy>

namespace uiutils::demo {

namespace {

constexpr qint64 mebibyte = 1 << 20;
/// Bytes passed to the socket at once, and the maximum that may be queued in it.
constexpr int slice = 256 * 1024;
constexpr qint64 mostWaiting = 512 * 1024LL;

/// The payload of transfers; created once, so that no sample pays for it.
const QByteArray& filler()
{
    static const QByteArray bytes(slice, 'u');
    return bytes;
}

} // namespace

LoopbackProbe::LoopbackProbe(const LoopbackSettings& settings)
    : m_settings(settings)
    , m_socket(this)
    , m_pause(this)
    , m_patience(this)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_pause.setSingleShot(true);
    m_pause.setInterval(settings.pauseMilliseconds);
    m_patience.setSingleShot(true);
    m_patience.setInterval(settings.patienceMilliseconds);

    connect(&m_socket, &QTcpSocket::connected, this, [this] {
        m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        Q_EMIT connectedTo(m_address);
        beginPhase(Phase::RoundTrip);
    });
    connect(&m_socket, &QTcpSocket::readyRead, this, &LoopbackProbe::readReply);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &LoopbackProbe::feedTransfer);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &LoopbackProbe::connectionFailed);
    connect(&m_pause, &QTimer::timeout, this, &LoopbackProbe::beginExchange);
    connect(&m_patience, &QTimer::timeout, this, &LoopbackProbe::giveUp);
}

LoopbackProbe::~LoopbackProbe()
{
    // The socket reports its own end, and nobody is there to receive that.
    m_socket.disconnect(this);
}

void LoopbackProbe::start()
{
    if (m_settings.port == 0 && !openServer())
        return;
    const quint16 port = m_server ? m_server->serverPort() : m_settings.port;
    const QHostAddress host(QHostAddress::LocalHost);
    m_address = QStringLiteral("%1:%2").arg(host.toString(), QString::number(port));
    m_patience.start();
    m_socket.connectToHost(host, port);
}

bool LoopbackProbe::openServer()
{
    m_server = std::make_unique<LoopbackServer>();
    if (m_server->listenOnLoopback())
        return true;
    fail(tr("No server could be opened on the loopback address (%1). Check that the loopback interface is up, then "
            "start again.")
                    .arg(m_server->errorString()));
    return false;
}

void LoopbackProbe::beginPhase(Phase phase)
{
    m_phase = phase;
    m_taken = -1;
    beginExchange();
}

void LoopbackProbe::beginExchange()
{
    m_patience.start();
    if (m_phase == Phase::RoundTrip)
        sendMessage();
    else
        sendTransfer();
}

void LoopbackProbe::sendMessage()
{
    const int payload = m_settings.messageBytes - protocol::headerSize;
    // Each message differs from the previous one, so that a late echo cannot be taken for the next.
    m_expectedReply = protocol::encode({protocol::Echo, quint64(payload)})
            + QByteArray::number(m_taken).rightJustified(payload, '.', true);
    m_clock.start();
    m_socket.write(m_expectedReply);
}

void LoopbackProbe::sendTransfer()
{
    m_unsent = m_settings.transferMebibytes * mebibyte;
    m_expectedReply = protocol::encode({protocol::Sink, quint64(m_unsent)});
    m_clock.start();
    m_socket.write(m_expectedReply);
    feedTransfer();
}

void LoopbackProbe::feedTransfer()
{
    if (m_phase == Phase::Over)
        return;
    if (m_patience.isActive())
        m_patience.start();
    while (m_unsent > 0 && m_socket.bytesToWrite() < mostWaiting) {
        const qint64 written = m_socket.write(filler().constData(), qMin<qint64>(m_unsent, slice));
        if (written <= 0)
            return;
        m_unsent -= written;
    }
}

void LoopbackProbe::readReply()
{
    if (m_phase == Phase::Over || m_socket.bytesAvailable() < m_expectedReply.size())
        return;
    const qint64 nanoseconds = m_clock.nsecsElapsed();
    if (m_expectedReply.isEmpty() || m_socket.readAll() != m_expectedReply) {
        fail(tr("The server at %1 sent an answer that does not match the request while %2. Another "
                "program may be listening there; start again.")
                        .arg(m_address, activity()));
        return;
    }
    m_expectedReply.clear();
    m_patience.stop();
    completeExchange(nanoseconds);
}

void LoopbackProbe::completeExchange(qint64 nanoseconds)
{
    // No network exchange takes zero time, but a division by zero would not be a measurement.
    nanoseconds = qMax<qint64>(nanoseconds, 1);
    if (m_taken >= 0 && m_phase == Phase::RoundTrip)
        Q_EMIT roundTripTaken(double(nanoseconds) / 1e6);
    else if (m_taken >= 0)
        Q_EMIT throughputTaken(double(m_settings.transferMebibytes * mebibyte) * 8 * 1e3 / double(nanoseconds));

    if (++m_taken < wantedSamples()) {
        m_pause.start();
        return;
    }
    if (m_phase == Phase::RoundTrip) {
        beginPhase(Phase::Throughput);
        return;
    }
    m_phase = Phase::Over;
    Q_EMIT finished();
}

void LoopbackProbe::connectionFailed()
{
    if (m_phase == Phase::Over)
        return;
    fail(tr("The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up "
            "and "
            "that no firewall blocks it, then start again.")
                    .arg(m_address, activity(), m_socket.errorString()));
}

void LoopbackProbe::giveUp()
{
    fail(tr("The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that "
            "no "
            "firewall blocks it, then start again.")
                    .arg(m_address, QString::number(m_settings.patienceMilliseconds / 1000.0), activity()));
}

void LoopbackProbe::fail(const QString& text)
{
    m_phase = Phase::Over;
    m_pause.stop();
    m_patience.stop();
    m_socket.abort();
    Q_EMIT failed(text);
}

int LoopbackProbe::wantedSamples() const
{
    return m_phase == Phase::Throughput ? m_settings.throughputSamples : m_settings.roundTripSamples;
}

QString LoopbackProbe::activity() const
{
    if (m_phase == Phase::Connecting)
        return tr("connecting");
    const QString number = QString::number(qMax(m_taken, 0) + 1);
    const QString count = QString::number(wantedSamples());
    return m_phase == Phase::RoundTrip ? tr("measuring round-trip time, sample %1 of %2").arg(number, count)
                                       : tr("measuring throughput, sample %1 of %2").arg(number, count);
}

} // namespace uiutils::demo
