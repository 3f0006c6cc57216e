#pragma once

#include <embedded/embeddedservice.h>

#include <QObject>

namespace kiv::embedded {
class EmbeddedBackend;
}

/// A service in C++: works out how much light a planned fiber link loses, whenever one of its settings changes.
class LinkBudget : public QObject
{
    Q_OBJECT

public:
    static const QString name;

    /// Publishes the service on `backend`, which owns it and must outlive this object.
    explicit LinkBudget(kiv::embedded::EmbeddedBackend& backend);

    /// The service's own side, for a BusPublisher.
    kiv::embedded::EmbeddedService* service() const { return m_service; }

private:
    double setting(const QString& id) const;
    void workOut();
    bool suggest(const QString& wavelength, QString* replyOrError);

    kiv::embedded::EmbeddedService* const m_service;
};
