#pragma once

#include "plan_p.h"

#include <QPointer>

#include <functional>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::simulation {

/// Where a happening stands at a time.
struct Stand
{
    /// How often it has begun.
    qint64 beginnings = 0;
    bool isOn = false;
    /// When that changes.
    qint64 next = 0;
};
Stand standOf(const Happening& happening, qint64 now);

/// Makes a service slow, refusing, not ready or unreachable for a while, as its file says.
class Happenings
{
public:
    Happenings(embedded::EmbeddedService* service, const Plan& plan);

    /// When the next one begins or ends; counts from the beginning of the simulation.
    qint64 due() const;
    /// Begins and ends what does so until now. What begins and ends in between is left out.
    void advance(qint64 now);

    /// The text with which the item rejects clients now; empty when nothing happens to it.
    QString refusalOf(const QString& id) const;
    /// A condition of an item with what happens to it now.
    Condition changed(const QString& id, Condition condition) const;

    /// The condition that an item has by its value, otherwise that of its file. May be empty.
    std::function<Condition(const QString& id, const Condition& inFile)> judged;
    /// Called before the service vanishes.
    std::function<void()> vanishing;

private:
    void begin(const Happening& happening, quint64 time);
    void turn(const Happening& happening);
    void turnItem(const QString& id, const Happening& happening);
    void turnReachable();

    const QPointer<embedded::EmbeddedService> m_service;
    const QVector<Happening> m_happenings;
    const int m_delayMs;
    const quint64 m_seed;
    QVector<Stand> m_stands;
};

} // namespace kiv::simulation
