#pragma once

#include "loopbackprobe.h"
#include "samplemodel.h"

#include <QDateTime>
#include <QObject>
#include <QThread>
#include <QVariantMap>

namespace uiutils::demo {

/// Measures round-trip time and throughput of TCP over this machine's loopback interface, with a server and a
/// client of its own.
///
/// Client and server share a thread of their own, so that drawing delays no sample; all functions here are called, and
/// all signals emitted, on the thread of this object. start() may be called again after any end. The object may be
/// destroyed at any time and waits only for the current step of the exchange.
class LoopbackMeasurement : public QObject
{
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY stateChanged)
    /// The state in words.
    Q_PROPERTY(QString stateText READ stateText NOTIFY stateChanged)
    /// What ended the run early and what to do; empty unless the state is Failed.
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    /// The share of this run's samples that has been taken, 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /// "address:port" of the server of the last run; empty before the first.
    Q_PROPERTY(QString serverAddress READ serverAddress NOTIFY serverAddressChanged)
    /// When the last run began, ISO 8601 with the offset from UTC; empty before the first.
    Q_PROPERTY(QString startTime READ startTime NOTIFY stateChanged)
    /// How the samples of the last run were taken, in sentences for the report.
    Q_PROPERTY(QString method READ method NOTIFY stateChanged)
    /// Samples of a quantity in the next run, fewestSamples to mostSamples; other values are clamped.
    Q_PROPERTY(int roundTripSamples READ roundTripSamples WRITE setRoundTripSamples NOTIFY samplesChanged)
    Q_PROPERTY(int throughputSamples READ throughputSamples WRITE setThroughputSamples NOTIFY samplesChanged)
    /// The permitted settings of a run, in a sentence.
    Q_PROPERTY(QString rangeText READ rangeText CONSTANT)
    Q_PROPERTY(uiutils::demo::SampleModel* roundTrip READ roundTrip CONSTANT)
    Q_PROPERTY(uiutils::demo::SampleModel* throughput READ throughput CONSTANT)
    /// Worse of the two quantities' statuses; Status::None until a run has finished.
    Q_PROPERTY(int status READ status NOTIFY statusChanged)

public:
    enum State { Idle, Connecting, MeasuringRoundTrip, MeasuringThroughput, Finished, Cancelled, Failed };
    Q_ENUM(State)

    static constexpr int fewestSamples = 20;
    static constexpr int mostSamples = 200;
    static constexpr int smallestMessage = 20;
    static constexpr int largestMessage = 65536;
    /// Initial limits, which any machine that can show this instrument's screens meets with ease.
    static constexpr double maximumRoundTripMilliseconds = 1;
    static constexpr double minimumThroughputMegabits = 1000;

    explicit LoopbackMeasurement(QObject* parent = nullptr);
    ~LoopbackMeasurement() override;

    State state() const { return m_state; }
    bool isRunning() const;
    QString stateText() const;
    QString errorText() const { return m_errorText; }
    double progress() const;
    QString serverAddress() const { return m_serverAddress; }
    QString startTime() const;
    QString method() const;
    static QString rangeText();
    int roundTripSamples() const { return m_settings.roundTripSamples; }
    int throughputSamples() const { return m_settings.throughputSamples; }
    int messageBytes() const { return m_settings.messageBytes; }
    SampleModel* roundTrip() { return &m_roundTrip; }
    SampleModel* throughput() { return &m_throughput; }
    int status() const;

    void setRoundTripSamples(int samples);
    void setThroughputSamples(int samples);
    /// The same count for both.
    void setSamples(int samples);
    /// Bytes of the message whose round trip is timed, smallestMessage to largestMessage; other values are clamped; for
    /// the next run.
    void setMessageBytes(int bytes);
    /// Maximum silence of the connection, above zero, before a run fails; for the next run.
    void setPatience(int milliseconds) { m_settings.patienceMilliseconds = milliseconds; }
    /// Pause between two samples, 0 or more; for the next run.
    void setPause(int milliseconds) { m_settings.pauseMilliseconds = milliseconds; }
    /// Port of a server on the loopback address, 0 for a server of this object's own; for the next run.
    void setServerPort(quint16 port) { m_settings.port = port; }

    /// Discards the samples of the previous run and starts a new one; does nothing during a run.
    Q_INVOKABLE void start();
    /// Ends the run at once and keeps the samples taken; does nothing without a run.
    Q_INVOKABLE void cancel();
    /// The results of a finished run as plain values, for restore(); empty in any other state.
    Q_INVOKABLE QVariantMap results() const;
    /// Takes over the results of an earlier run, as if it had just finished; false, without a change, during a run and
    /// for what results() cannot have given. Emits finished().
    Q_INVOKABLE bool restore(const QVariantMap& results);

Q_SIGNALS:
    void stateChanged();
    void progressChanged();
    void serverAddressChanged();
    void samplesChanged();
    void statusChanged();
    /// A sample was appended to one of the two quantities.
    void sampleTaken(uiutils::demo::SampleModel* quantity, double value);
    /// One of these three ends each run, after the state has changed.
    void finished();
    void cancelled();
    void failed(const QString& text);

private:
    void listenTo(LoopbackProbe* probe);
    void take(SampleModel* quantity, double value);
    void end(State state, const QString& errorText = {});
    void setState(State state);
    void setCount(int* count, int samples);

    LoopbackSettings m_settings;
    /// m_settings at the start of the last run.
    LoopbackSettings m_runSettings;
    SampleModel m_roundTrip;
    SampleModel m_throughput;
    QThread m_thread;
    /// Lives in m_thread; null between runs.
    LoopbackProbe* m_probe = nullptr;
    /// Number of the run: signals of an ended run that are still queued are recognized by it and discarded.
    int m_run = 0;
    State m_state = Idle;
    QString m_errorText;
    QString m_serverAddress;
    QDateTime m_startTime;
};

} // namespace uiutils::demo
