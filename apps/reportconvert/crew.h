#pragma once

#include "plan.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <sys/types.h>
#include <vector>

namespace uiutils::convert {

/// Converts the documents of a plan in several processes, which stay for one document after the other: most of the time
/// of a conversion is the start of a process. A process that crashes costs its document only. Create it before any
/// thread starts and before the toolkit.
class Crew
{
public:
    /// What a worker does with its end of the channel, in its own process. Returns that process's exit status.
    using Work = std::function<int(int channel)>;

    Crew(const Plan& plan, int workers, Work work);

    /// Returns the program's exit status; in a worker's process that of `work`.
    int run();

private:
    struct Worker
    {
        pid_t process = -1;
        int channel = -1;
        QByteArray pending;
        /// The number of the document; negative while it has none.
        int job = -1;
        bool isReady = false;
    };

    bool isWorking() const;
    bool startWorkers();
    bool startWorker();
    bool waitForAnswers(bool heedsSignals);
    void hear(Worker& worker);
    void hear(Worker& worker, const QByteArray& line);
    void handOut(Worker& worker);
    void bury(Worker& worker);
    void buryUnready(int status);
    void removeLeftovers(int job) const;
    void failJob(int job, int status);
    void signalWorkers(int signal) const;
    void stop();
    int finish() const;

    const Plan& m_plan;
    Work m_work;
    int m_size;
    std::vector<Worker> m_workers;
    int m_next = 0;
    int m_finished = 0;
    int m_written = 0;
    QStringList m_failed;
    bool m_canStart = true;
    bool m_wasReady = false;
    /// Of a run that could not begin.
    int m_exitStatus = 0;
    int m_signal = 0;
};

} // namespace uiutils::convert
