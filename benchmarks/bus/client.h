#pragma once

#include <QObject>

#include <memory>

class KIVClientInterface;
class Manifest;

namespace kiv::bus {
class BusBackend;
}

namespace bench {

class OwnRecording;
class Page;

/// A program that shows the items of our service.
class Client : public QObject
{
    Q_OBJECT

public:
    Client();
    ~Client() override;

    void open(int count, int first, int step);
    /// Answers from now on whenever the binding to the item has a new value.
    void watch(int item);
    void settle(int changes) const;
    void record(bool isCompressed);
    /// Ends the recording. Returns whether it holds every change of so many loads.
    bool hasRecorded(int loads);

private Q_SLOTS:
    void onChanged();

private:
    std::unique_ptr<kiv::bus::BusBackend> m_backend;
    KIVClientInterface* m_client = nullptr;
    std::unique_ptr<Manifest> m_manifest;
    std::unique_ptr<Page> m_page;
    std::unique_ptr<OwnRecording> m_recording;
    QMetaObject::Connection m_watched;
    int m_item = 0;
};

} // namespace bench
