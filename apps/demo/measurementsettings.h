#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class KIVClientInterface;

namespace uiutils::demo {

class LoopbackMeasurement;
class SampleModel;

/// Keeps the measurement and the settings of the service "loopback" at one: sample counts, message size and limits come
/// from the service, at once and whenever it reports others, and a limit that is changed at the measurement is set
/// there. A limit that the service refuses goes back to what the service holds.
///
/// The measurement has to outlive it. Without a client, or for an item that the service does not have, the measurement
/// keeps what it has.
class MeasurementSettings : public QObject
{
    Q_OBJECT

public:
    enum SampleCounts {
        FollowSampleCounts,
        /// The counts were asked for otherwise and stay as they are.
        KeepSampleCounts,
    };

    MeasurementSettings(LoopbackMeasurement* measurement, KIVClientInterface* client, SampleCounts counts);

private:
    void followAll();
    void follow(const QString& id, const std::function<void(double)>& take);
    void write(const QString& id, SampleModel* quantity);

    LoopbackMeasurement* const m_measurement;
    const QPointer<KIVClientInterface> m_client;
    const SampleCounts m_counts;
};

} // namespace uiutils::demo
