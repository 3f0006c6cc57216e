#pragma once

#include "motion_p.h"

#include <QPointer>
#include <QVector>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::simulation {

/// Gives the moving items of a service their values. Items that move in the same rhythm move together.
///
/// A slot that hears of a value may do anything: end the service, start and stop actions, or run an event loop in which
/// time goes on.
class Movements
{
public:
    Movements(embedded::EmbeddedService* service, const QVector<Motion>& motions, quint64 seed);

    /// Sets every item in motion that does not wait for an action.
    void begin(qint64 now);
    void startAction(const QString& action, qint64 now) { start(action, now); }
    void endAction(const QString& action);

    /// When the next item moves.
    qint64 due() const;
    /// Gives every item whose time has come the value that it has now; values in between are left out.
    void advance(qint64 now);

private:
    struct Item
    {
        QString id;
        Mover mover;
        qint64 lastStep = -1;
    };
    struct Rhythm
    {
        qint64 everyMs;
        QString whileAction;
        QVector<Item> items;
        qint64 begun = 0;
        qint64 next = never;
        /// How often it was started: a slot may start it anew.
        int round = 0;
    };

    void start(const QString& action, qint64 now);
    void move(Rhythm& rhythm, qint64 now);

    const QPointer<embedded::EmbeddedService> m_service;
    /// Neither it nor the lists in it change their sizes.
    QVector<Rhythm> m_rhythms;
};

} // namespace kiv::simulation
