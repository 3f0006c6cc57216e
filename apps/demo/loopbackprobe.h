#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

namespace uiutils::demo {

class LoopbackServer;

/// How one run is measured.
struct LoopbackSettings
{
    int roundTripSamples = 20;
    int throughputSamples = 20;
    /// Bytes of the message whose round trip is timed; at least the size of the protocol's header.
    int messageBytes = 64;
    /// Mebibytes (MiB) sent for one throughput sample.
    int transferMebibytes = 8;
    /// Pause between two samples in milliseconds, so that they are spread over time.
    int pauseMilliseconds = 40;
    /// Maximum silence of the connection before the run fails, in milliseconds.
    int patienceMilliseconds = 5000;
    /// Port of a server on the loopback address; 0 starts one for the run.
    quint16 port = 0;
};

/// One run: connects, then takes the samples of the round-trip time and those of the throughput, all on the event loop
/// of its thread. Delete it to cancel the run.
///
/// One exchange of each kind before the first sample is not counted: it pays for the start of the connection
/// and for cold caches.
class LoopbackProbe : public QObject
{
    Q_OBJECT

public:
    explicit LoopbackProbe(const LoopbackSettings& settings);
    ~LoopbackProbe() override;

    /// Starts the run; call it once, in the probe's own thread.
    void start();

Q_SIGNALS:
    /// The client talks to the server at "address:port".
    void connectedTo(const QString& address);
    void roundTripTaken(double milliseconds);
    /// In Mbit/s, a million bits a second.
    void throughputTaken(double megabitsPerSecond);
    /// All samples were taken. A run ends with either this or failed().
    void finished();
    /// The run ended early; the text says what happened and what to do.
    void failed(const QString& text);

private:
    enum class Phase { Connecting, RoundTrip, Throughput, Over };

    bool openServer();
    void beginPhase(Phase phase);
    void beginExchange();
    void sendMessage();
    void sendTransfer();
    void feedTransfer();
    void readReply();
    void completeExchange(qint64 nanoseconds);
    void connectionFailed();
    void giveUp();
    void fail(const QString& text);
    QString activity() const;
    /// Samples of the quantity that is being measured.
    int wantedSamples() const;

    const LoopbackSettings m_settings;
    std::unique_ptr<LoopbackServer> m_server;
    QTcpSocket m_socket;
    QTimer m_pause;
    QTimer m_patience;
    QElapsedTimer m_clock;
    QString m_address;
    Phase m_phase = Phase::Connecting;
    /// Samples taken in this phase; -1 during the exchange that is not counted.
    int m_taken = -1;
    QByteArray m_expectedReply;
    qint64 m_unsent = 0;
};

} // namespace uiutils::demo
