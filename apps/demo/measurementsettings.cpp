#include "measurementsettings.h"

#include "loopbackmeasurement.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <cmath>

namespace uiutils::demo {

namespace {

const QLatin1String roundTripSamplesId(":config:loopback:test:rttSamples:");
const QLatin1String throughputSamplesId(":config:loopback:test:throughputSamples:");
const QLatin1String messageSizeId(":config:loopback:test:messageSize:");
const QLatin1String roundTripLimitId(":config:loopback:limits:maximumRtt:");
const QLatin1String throughputLimitId(":config:loopback:limits:minimumThroughput:");

/// A service may give any value; the receiver clamps those out of range.
int wholeNumber(double value)
{
    return int(qBound(0.0, value, 1e9));
}

} // namespace

MeasurementSettings::MeasurementSettings(
        LoopbackMeasurement* measurement, KIVClientInterface* client, SampleCounts counts)
    : m_measurement(measurement)
    , m_client(client)
    , m_counts(counts)
{
    if (!client)
        return;
    connect(client, &KIVClientInterface::itemsChanged, this, &MeasurementSettings::followAll);
    followAll();
    // Connected only now, so that the measurement's initial values are not written to the service.
    connect(measurement->roundTrip(), &SampleModel::limitChanged, this,
            [this] { write(roundTripLimitId, m_measurement->roundTrip()); });
    connect(measurement->throughput(), &SampleModel::limitChanged, this,
            [this] { write(throughputLimitId, m_measurement->throughput()); });
}

void MeasurementSettings::followAll()
{
    follow(roundTripLimitId, [this](double limit) { m_measurement->roundTrip()->setLimit(limit); });
    follow(throughputLimitId, [this](double limit) { m_measurement->throughput()->setLimit(limit); });
    follow(messageSizeId, [this](double bytes) { m_measurement->setMessageBytes(wholeNumber(bytes)); });
    if (m_counts == KeepSampleCounts)
        return;
    follow(roundTripSamplesId, [this](double count) { m_measurement->setRoundTripSamples(wholeNumber(count)); });
    follow(throughputSamplesId, [this](double count) { m_measurement->setThroughputSamples(wholeNumber(count)); });
}

void MeasurementSettings::follow(const QString& id, const std::function<void(double)>& take)
{
    KIVClientItem* const item = m_client->getItem(id);
    if (!item)
        return;
    const auto takeValue = [item, take] {
        bool isNumber = false;
        const double value = item->getValue().toDouble(&isNumber);
        if (isNumber && std::isfinite(value))
            take(value);
    };
    // Items that stayed while others were added or removed are already connected.
    item->disconnect(this);
    connect(item, &KIVClientItem::valueChanged, this, takeValue);
    takeValue();
}

void MeasurementSettings::write(const QString& id, SampleModel* quantity)
{
    const KIVClientItem* const item = m_client ? m_client->getItem(id) : nullptr;
    if (!item || item->getValue().toDouble() == quantity->limit() || m_client->setItem(id, quantity->limit()))
        return;
    qWarning("%s", qUtf8Printable(m_client->getLastError()));
    // Through the event loop, because the object that changed the limit is still emitting.
    QMetaObject::invokeMethod(this, &MeasurementSettings::followAll, Qt::QueuedConnection);
}

} // namespace uiutils::demo
