#include "resultpublisher.h"

#include "loopbackmeasurement.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

namespace uiutils::demo {

namespace {

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

void publishResults(LoopbackMeasurement* measurement, const kiv::embedded::EmbeddedBackend* backend)
{
    const auto publishAll = [measurement, backend] {
        publish(*measurement->roundTrip(), backend->service(QStringLiteral("loopback_rtt")),
                QStringLiteral("upperLimit"));
        publish(*measurement->throughput(), backend->service(QStringLiteral("loopback_throughput")),
                QStringLiteral("lowerLimit"));
    };
    QObject::connect(measurement, &LoopbackMeasurement::finished, measurement, publishAll);
    QObject::connect(measurement->roundTrip(), &SampleModel::limitChanged, measurement, publishAll);
    QObject::connect(measurement->throughput(), &SampleModel::limitChanged, measurement, publishAll);
}

} // namespace uiutils::demo
