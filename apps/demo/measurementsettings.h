#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class KIVClientInterface;

namespace uiutils::demo {

class LoopbackMeasurement;
class SampleModel;

/// Synchronizes the measurement with the settings of the service "loopback": sample counts, message size and limits are
/// read from the service, at once and whenever they change, and a limit that changes in the measurement is written to
/// the service. If the service rejects a limit, the measurement gets the service's value again.
///
/// The measurement must outlive it. Without a client, or for an item that the service lacks, the measurement keeps its
/// values.
class MeasurementSettings : public QObject
{
    Q_OBJECT

public:
    enum SampleCounts {
        FollowSampleCounts,
        /// The counts were given on the command line and stay as they are.
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
