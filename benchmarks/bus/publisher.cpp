#include "commands.h"
#include "load.h"
#include "ownservice.h"
#include "roles.h"
#include "workload.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedservice.h>

#include <QCoreApplication>

#include <memory>

namespace bench {

namespace {

class Publisher
{
public:
    void publish(int items)
    {
        m_publisher.reset();
        m_service.reset();
        m_service = std::make_unique<OwnService>(items);
        m_publisher = std::make_unique<kiv::bus::BusPublisher>();
        QObject::connect(m_publisher.get(), &kiv::bus::BusPublisher::published, [] { answer({}); });
        QString problem;
        if (!m_publisher->publish(m_service->service(), &problem))
            qFatal("%s", qPrintable(problem));
        m_ids.clear();
        for (int item = 0; item < items; ++item)
            m_ids += itemId(item);
    }

    void change(int items)
    {
        const double time = now();
        kiv::embedded::EmbeddedService& service = *m_service->service();
        ++m_changes;
        for (int item = 0; item < items - 1; ++item)
            service.setValue(m_ids.at(item), valueOf(item, m_changes));
        service.setValue(m_ids.at(items - 1), time);
    }

    void load()
    {
        m_load = std::make_unique<Load>([this](int first) {
            for (int change = first; change < first + changesPerTurn; ++change) {
                const int item = change % itemCount;
                m_service->service()->setValue(m_ids.at(item), valueOf(item, change));
            }
        });
    }

private:
    std::unique_ptr<OwnService> m_service;
    std::unique_ptr<kiv::bus::BusPublisher> m_publisher;
    std::unique_ptr<Load> m_load;
    QVector<QString> m_ids;
    int m_changes = 0;
};

} // namespace

int publisherRole()
{
    Publisher publisher;
    const Commands commands({
            {QStringLiteral("items"),
                    [&publisher](const QVector<int>& arguments) { publisher.publish(arguments.at(0)); }},
            {QStringLiteral("change"),
                    [&publisher](const QVector<int>& arguments) { publisher.change(arguments.at(0)); }},
            {QStringLiteral("load"), [&publisher](const QVector<int>&) { publisher.load(); }},
    });
    return QCoreApplication::exec();
}

} // namespace bench
