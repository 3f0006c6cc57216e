#include "loopbackmeasurement.h"

#include "loopbackprotocol.h"

#include <QLocale>

#include <cmath>
#include <optional>

namespace uiutils::demo {

namespace {

const QString startKey = QStringLiteral("startTime");
const QString serverKey = QStringLiteral("server");
const QString messageKey = QStringLiteral("messageBytes");
const QString roundTripKey = QStringLiteral("roundTrip");
const QString throughputKey = QStringLiteral("throughput");
/// Of "address:port".
constexpr int longestAddress = 64;

/// The samples of a quantity; nothing if they cannot be those of a run.
std::optional<QVector<double>> samplesIn(const QVariant& list)
{
    const QVariantList values = list.toList();
    if (values.isEmpty() || values.size() > LoopbackMeasurement::mostSamples)
        return {};
    QVector<double> samples;
    for (const QVariant& value : values) {
        bool isNumber = false;
        samples += value.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(samples.constLast()) || samples.constLast() < 0)
            return {};
    }
    return samples;
}

} // namespace

LoopbackMeasurement::LoopbackMeasurement(QObject* parent)
    : QObject(parent)
    , m_roundTrip([] { return SampleModel::tr("Round-trip time"); }, QStringLiteral("ms"), 3,
              {Limit::AtMost, maximumRoundTripMilliseconds}, this)
    , m_throughput([] { return SampleModel::tr("Throughput"); }, QStringLiteral("Mbit/s"), 0,
              {Limit::AtLeast, minimumThroughputMegabits}, this)
{
    m_thread.setObjectName(QStringLiteral("loopback"));
    connect(&m_roundTrip, &SampleModel::statusChanged, this, &LoopbackMeasurement::statusChanged);
    connect(&m_throughput, &SampleModel::statusChanged, this, &LoopbackMeasurement::statusChanged);
    connect(this, &LoopbackMeasurement::stateChanged, this, &LoopbackMeasurement::statusChanged);
}

LoopbackMeasurement::~LoopbackMeasurement()
{
    if (m_probe)
        m_probe->deleteLater();
    m_thread.quit();
    m_thread.wait();
}

bool LoopbackMeasurement::isRunning() const
{
    return m_state == Connecting || m_state == MeasuringRoundTrip || m_state == MeasuringThroughput;
}

QString LoopbackMeasurement::stateText() const
{
    switch (m_state) {
    case Idle:
        return tr("Ready to measure");
    case Connecting:
        return tr("Connecting to the server");
    case MeasuringRoundTrip:
        return tr("Measuring round-trip time");
    case MeasuringThroughput:
        return tr("Measuring throughput");
    case Finished:
        return tr("Finished");
    case Cancelled:
        return tr("Cancelled");
    case Failed:
        return tr("Failed");
    }
    return {};
}

double LoopbackMeasurement::progress() const
{
    return double(m_roundTrip.count() + m_throughput.count())
            / double(m_runSettings.roundTripSamples + m_runSettings.throughputSamples);
}

QString LoopbackMeasurement::startTime() const
{
    return m_startTime.toString(Qt::ISODate);
}

QString LoopbackMeasurement::method() const
{
    if (m_state == Idle)
        return {};
    const QLocale locale;
    const auto text = [&](int number) { return locale.toString(number); };
    return tr("Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. "
              "Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had "
              "arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the "
              "last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one "
              "exchange of each kind before the first sample is not counted. Jitter is the mean difference between "
              "neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is "
              "marginal when it meets it with less, and fails when it does not meet it; the overall status is that of "
              "the worse median.")
            .arg(text(m_runSettings.roundTripSamples), text(m_runSettings.messageBytes),
                    text(m_runSettings.transferMebibytes), text(m_runSettings.pauseMilliseconds),
                    text(qRound(marginalShare * 100)), text(m_runSettings.throughputSamples));
}

QString LoopbackMeasurement::rangeText()
{
    return tr("A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the "
              "nearest permitted one.")
            .arg(QString::number(fewestSamples), QString::number(mostSamples), QString::number(smallestMessage));
}

int LoopbackMeasurement::status() const
{
    return m_state == Finished ? qMax(m_roundTrip.status(), m_throughput.status()) : Status::None;
}

void LoopbackMeasurement::setRoundTripSamples(int samples)
{
    setCount(&m_settings.roundTripSamples, samples);
}

void LoopbackMeasurement::setThroughputSamples(int samples)
{
    setCount(&m_settings.throughputSamples, samples);
}

void LoopbackMeasurement::setSamples(int samples)
{
    setRoundTripSamples(samples);
    setThroughputSamples(samples);
}

void LoopbackMeasurement::setCount(int* count, int samples)
{
    samples = qBound(fewestSamples, samples, mostSamples);
    if (samples == *count)
        return;
    *count = samples;
    Q_EMIT samplesChanged();
}

void LoopbackMeasurement::setMessageBytes(int bytes)
{
    // The number that distinguishes messages must fit after the header.
    static_assert(smallestMessage >= protocol::headerSize + 3 && largestMessage <= int(protocol::largestEcho));
    m_settings.messageBytes = qBound(smallestMessage, bytes, largestMessage);
}

void LoopbackMeasurement::start()
{
    if (isRunning())
        return;
    ++m_run;
    m_runSettings = m_settings;
    m_roundTrip.clear();
    m_throughput.clear();
    const QDateTime now = QDateTime::currentDateTime();
    m_startTime = now.toOffsetFromUtc(now.offsetFromUtc());
    m_errorText.clear();
    setState(Connecting);
    Q_EMIT progressChanged();

    m_probe = new LoopbackProbe(m_runSettings);
    listenTo(m_probe);
    m_probe->moveToThread(&m_thread);
    m_thread.start();
    QMetaObject::invokeMethod(m_probe, &LoopbackProbe::start, Qt::QueuedConnection);
}

void LoopbackMeasurement::cancel()
{
    if (!isRunning())
        return;
    end(Cancelled);
    Q_EMIT cancelled();
}

QVariantMap LoopbackMeasurement::results() const
{
    if (m_state != Finished)
        return {};
    return {{startKey, startTime()}, {serverKey, m_serverAddress}, {messageKey, m_runSettings.messageBytes},
            {roundTripKey, m_roundTrip.values()}, {throughputKey, m_throughput.values()}};
}

bool LoopbackMeasurement::restore(const QVariantMap& results)
{
    const QDateTime start = QDateTime::fromString(results.value(startKey).toString(), Qt::ISODate);
    const std::optional<QVector<double>> roundTrip = samplesIn(results.value(roundTripKey));
    const std::optional<QVector<double>> throughput = samplesIn(results.value(throughputKey));
    if (isRunning() || !start.isValid() || !roundTrip || !throughput)
        return false;
    ++m_run;
    m_startTime = start;
    m_runSettings.roundTripSamples = roundTrip->size();
    m_runSettings.throughputSamples = throughput->size();
    m_runSettings.messageBytes = qBound(smallestMessage, results.value(messageKey).toInt(), largestMessage);
    m_serverAddress = results.value(serverKey).toString().left(longestAddress);
    m_errorText.clear();
    m_roundTrip.setValues(*roundTrip);
    m_throughput.setValues(*throughput);
    Q_EMIT serverAddressChanged();
    Q_EMIT progressChanged();
    setState(Finished);
    Q_EMIT finished();
    return true;
}

void LoopbackMeasurement::listenTo(LoopbackProbe* probe)
{
    const int run = m_run;
    connect(probe, &LoopbackProbe::connectedTo, this, [this, run](const QString& address) {
        if (run != m_run)
            return;
        m_serverAddress = address;
        Q_EMIT serverAddressChanged();
        setState(MeasuringRoundTrip);
    });
    connect(probe, &LoopbackProbe::roundTripTaken, this, [this, run](double milliseconds) {
        if (run == m_run)
            take(&m_roundTrip, milliseconds);
    });
    connect(probe, &LoopbackProbe::throughputTaken, this, [this, run](double megabits) {
        if (run == m_run)
            take(&m_throughput, megabits);
    });
    connect(probe, &LoopbackProbe::finished, this, [this, run] {
        if (run != m_run)
            return;
        end(Finished);
        Q_EMIT finished();
    });
    connect(probe, &LoopbackProbe::failed, this, [this, run](const QString& text) {
        if (run != m_run)
            return;
        end(Failed, text);
        Q_EMIT failed(text);
    });
}

void LoopbackMeasurement::take(SampleModel* quantity, double value)
{
    quantity->append(value);
    Q_EMIT progressChanged();
    Q_EMIT sampleTaken(quantity, value);
    // A slot that heard of the sample may have cancelled the run.
    if (isRunning() && m_roundTrip.count() == m_runSettings.roundTripSamples)
        setState(MeasuringThroughput);
}

void LoopbackMeasurement::end(State state, const QString& errorText)
{
    ++m_run;
    m_errorText = errorText;
    m_probe->deleteLater();
    m_probe = nullptr;
    setState(state);
}

void LoopbackMeasurement::setState(State state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

} // namespace uiutils::demo
