#include "resultpublisher.h"

#include "loopbackmeasurement.h"

#include <embedded/embeddedservice.h>

namespace uiutils::demo {

namespace {

const QString roundTripService = QStringLiteral("loopback_rtt");
const QString throughputService = QStringLiteral("loopback_throughput");

void publish(const SampleModel& samples, kiv::embedded::EmbeddedService* service, const QString& limitAttribute)
{
    if (!service)
        return;
    QVariantList numbers;
    QVariantList values;
    for (int i = 0; i < samples.count(); ++i) {
        numbers += double(i + 1);
        values += samples.valueAt(i);
    }
    const QString stem = QStringLiteral(":result:%1:samples_").arg(service->name());
    const QString valuesId = stem + QStringLiteral("y:doubleARRAY:");
    service->setValue(stem + QStringLiteral("x:doubleARRAY:"), numbers);
    service->setValue(valuesId, values);
    service->setAttribute(valuesId, limitAttribute, samples.limit());
}

} // namespace

void publishResults(
        LoopbackMeasurement* measurement, const std::function<kiv::embedded::EmbeddedService*(const QString&)>& service)
{
    const auto publishAll = [measurement, service] {
        publish(*measurement->roundTrip(), service(roundTripService), QStringLiteral("upperLimit"));
        publish(*measurement->throughput(), service(throughputService), QStringLiteral("lowerLimit"));
    };
    QObject::connect(measurement, &LoopbackMeasurement::finished, measurement, publishAll);
    QObject::connect(measurement->roundTrip(), &SampleModel::limitChanged, measurement, publishAll);
    QObject::connect(measurement->throughput(), &SampleModel::limitChanged, measurement, publishAll);
}

QStringList resultServices()
{
    return {roundTripService, throughputService};
}

} // namespace uiutils::demo
