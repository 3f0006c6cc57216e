#pragma once

#include "plan_p.h"

#include <QPointer>

#include <functional>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::simulation {

/// Carries out the actions that take time, fail now and then, or stop others.
class SimulatedActions
{
public:
    SimulatedActions(embedded::EmbeddedService* service, const Plan& plan);

    int size() const { return m_actions.size(); }
    QString id(int index) const { return m_actions.at(index).action.id; }

    /// A client's request, as EmbeddedService::ActionHandler.
    bool call(int index, const QString& argument, qint64 now, QString* replyOrError);
    /// Stops everything that runs.
    void stopAll();

    /// When the next progress is made or something is done.
    qint64 due() const;
    /// Makes progress with what runs, and ends what is done.
    void advance(qint64 now);

    /// Called when an action begins to run, and when it runs no longer.
    std::function<void(const QString& id, qint64 now)> started;
    std::function<void(const QString& id)> ended;

private:
    struct Entry
    {
        SimulatedAction action;
        RandomSequence random;
        /// Numbers that were drawn so far.
        quint64 drawn = 0;
        bool isRunning = false;
        bool isFailing = false;
        qint64 begun = 0;
        qint64 ends = never;
        qint64 nextProgress = never;
        QString argument = {};
    };

    bool fails(Entry& entry);
    void run(Entry& entry, const QString& argument, qint64 now);
    void advance(Entry& entry, qint64 now);
    void end(Entry& entry, const QVector<Assignment>& assignments);
    void setProgress(const Entry& entry, double percent);
    Entry* find(const QString& id);

    const QPointer<embedded::EmbeddedService> m_service;
    /// Does not change its size.
    QVector<Entry> m_actions;
};

} // namespace kiv::simulation
