#include "platformsetup_embedded.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>

#include <QSemaphore>
#include <QThread>

namespace {

/// The services live in a thread of their own and can be reached by the bus alone, as those of another process.
class BusSetup final : public PlatformSetup
{
public:
    explicit BusSetup(const QStringList& files)
    {
        m_thread.start();
        m_worker.moveToThread(&m_thread);
        inThread([&] { begin(files); });
        if (m_names.size() != files.size())
            return;
        m_published.acquire(m_names.size());
        m_backend = std::make_unique<kiv::bus::BusBackend>();
        m_isUp = m_backend->waitForServices(30'000);
    }
    ~BusSetup() override
    {
        m_backend.reset();
        inThread([&] {
            m_publisher.reset();
            m_services.reset();
        });
        m_thread.quit();
        m_thread.wait();
    }

    bool isUp() const { return m_isUp; }

    bool report(const QString& service, const QString& id, const QVariant& value) override
    {
        return drive([&](PlatformSetup& setup) { return setup.report(service, id, value); });
    }
    bool change(const QString& service, const QString& id, Answer answer, const QVariant& value) override
    {
        return drive([&](PlatformSetup& setup) { return setup.change(service, id, answer, value); });
    }
    bool setChoices(const QString& service, const QString& id, const QVector<Choice>& choices) override
    {
        return drive([&](PlatformSetup& setup) { return setup.setChoices(service, id, choices); });
    }
    bool addItem(const QString& service, const QString& id, const QString& type, const QVariant& value) override
    {
        return drive([&](PlatformSetup& setup) { return setup.addItem(service, id, type, value); });
    }
    bool removeItem(const QString& service, const QString& id) override
    {
        return drive([&](PlatformSetup& setup) { return setup.removeItem(service, id); });
    }
    bool setReachable(const QString& service, bool isReachable) override
    {
        return drive([&](PlatformSetup& setup) { return setup.setReachable(service, isReachable); });
    }
    bool setMounted(const QString& service, const QString& path, bool isMounted) override
    {
        return drive([&](PlatformSetup& setup) { return setup.setMounted(service, path, isMounted); });
    }
    bool reportError(const QString& service, const QString& text) override
    {
        return drive([&](PlatformSetup& setup) { return setup.reportError(service, text); });
    }
    bool setDelay(const QString& service, int ms) override
    {
        return drive([&](PlatformSetup& setup) { return setup.setDelay(service, ms); });
    }

private:
    void inThread(const std::function<void()>& work)
    {
        QMetaObject::invokeMethod(&m_worker, work, Qt::BlockingQueuedConnection);
    }
    bool drive(const std::function<bool(PlatformSetup&)>& work)
    {
        bool isDone = false;
        inThread([&] { isDone = work(*m_services); });
        return isDone;
    }
    void begin(const QStringList& files)
    {
        m_services = EmbeddedSetup::createEmbedded(files);
        if (!m_services)
            return;
        m_publisher = std::make_unique<kiv::bus::BusPublisher>();
        QObject::connect(m_publisher.get(), &kiv::bus::BusPublisher::published, &m_worker, [this] { m_published.release(); });
        m_names = m_services->backend.serviceNames();
        for (const QString& name : qAsConst(m_names)) {
            if (!m_publisher->publish(m_services->backend.service(name)))
                qFatal("%s is not published", qPrintable(name));
        }
    }

    QThread m_thread;
    QObject m_worker;
    std::unique_ptr<EmbeddedSetup> m_services;
    std::unique_ptr<kiv::bus::BusPublisher> m_publisher;
    QStringList m_names;
    QSemaphore m_published;
    std::unique_ptr<kiv::bus::BusBackend> m_backend;
    bool m_isUp = false;
};

} // namespace

std::unique_ptr<PlatformSetup> PlatformSetup::create(const QStringList& serviceFiles)
{
    auto setup = std::make_unique<BusSetup>(serviceFiles);
    return setup->isUp() ? std::move(setup) : nullptr;
}
