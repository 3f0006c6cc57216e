#include "crew.h"

#include "base/temporaries_p.h"
#include "common/complaint.h"
#include "console.h"
#include "conversion.h"
#include "signals.h"
#include "texts.h"
#include "worker.h"
#include "workspace.h"

#include <QDeadlineTimer>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace uiutils::convert {

namespace {

/// A worker that was told to stop finishes the file that it is writing.
constexpr int patienceMs = 10 * 1000;

QString causeOf(int status)
{
    if (WIFSIGNALED(status))
        return QStringLiteral("SIG") + QLatin1String(::sigabbrev_np(WTERMSIG(status)));
    return Texts::tr("exit status %1").arg(WEXITSTATUS(status));
}

QString listOf(const QStringList& names)
{
    constexpr int most = 10;
    const QString list = names.mid(0, most).join(QStringLiteral(", "));
    return names.size() <= most ? list : Texts::tr("%1 and %2 more").arg(list).arg(names.size() - most);
}

} // namespace

Crew::Crew(const Plan& plan, int workers, Work work)
    : m_plan(plan)
    , m_work(std::move(work))
    , m_size(std::min(workers, plan.jobs.size()))
{
}

int Crew::run()
{
    // The others follow when the first has shown that they can start, so that what is missing is said once.
    bool isWorker = startWorker();
    while (!isWorker && m_signal == 0 && isWorking()) {
        if (!waitForAnswers(true))
            stop();
        else
            isWorker = startWorkers();
    }
    if (isWorker)
        return m_work(m_workers.back().channel);
    return finish();
}

bool Crew::isWorking() const
{
    return std::any_of(m_workers.begin(), m_workers.end(), [](const Worker& worker) { return worker.process > 0; });
}

/// As many as there is work for. True in the process of a new one.
bool Crew::startWorkers()
{
    m_workers.erase(std::remove_if(m_workers.begin(), m_workers.end(), [](const Worker& w) { return w.process <= 0; }),
            m_workers.end());
    const int busy = int(std::count_if(m_workers.begin(), m_workers.end(), [](const Worker& w) { return w.job >= 0; }));
    const int wanted = std::min(m_size, busy + m_plan.jobs.size() - m_next);
    while (m_wasReady && m_canStart && int(m_workers.size()) < wanted) {
        if (startWorker())
            return true;
    }
    return false;
}

bool Crew::startWorker()
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        m_canStart = false;
        return false;
    }
    const pid_t process = ::fork();
    if (process == 0) {
        // Held here, they would keep the other workers waiting for a crew that is gone.
        for (const Worker& other : m_workers)
            ::close(other.channel);
        ::close(ends[0]);
        m_workers = {Worker {0, ends[1], {}}};
        return true;
    }
    ::close(ends[1]);
    if (process > 0) {
        m_workers.push_back({process, ends[0], {}});
        return false;
    }
    ::close(ends[0]);
    m_canStart = false;
    return false;
}

/// False when a signal came.
bool Crew::waitForAnswers(bool heedsSignals)
{
    std::vector<pollfd> waiting;
    for (const Worker& worker : m_workers)
        waiting.push_back({worker.process > 0 ? worker.channel : -1, POLLIN, 0});
    if (heedsSignals && !waitForAny(waiting))
        return false;
    constexpr int stepMs = 100;
    if (!heedsSignals && ::poll(waiting.data(), waiting.size(), stepMs) <= 0)
        return true;
    for (size_t i = 0; i < waiting.size(); ++i) {
        if (waiting[i].revents != 0)
            hear(m_workers[i]);
    }
    return true;
}

void Crew::hear(Worker& worker)
{
    QList<QByteArray> lines;
    const bool isOpen = takeLines(worker.channel, &worker.pending, &lines);
    for (const QByteArray& line : qAsConst(lines))
        hear(worker, line);
    if (!isOpen)
        bury(worker);
}

void Crew::hear(Worker& worker, const QByteArray& line)
{
    switch (line.isEmpty() ? '\0' : line.at(0)) {
    case answers::ready:
        worker.isReady = m_wasReady = true;
        handOut(worker);
        break;
    case answers::message:
        // What the first worker had to say when it started, the others say again.
        if (worker.isReady || !m_wasReady)
            say(QString::fromUtf8(line.mid(1)));
        break;
    case answers::done:
        m_written += line.mid(3).toInt();
        ++m_finished;
        if (line.mid(1, 1) != "1")
            m_failed += m_plan.jobs.at(worker.job).name();
        showProgress(Texts::tr("%1 of %2 documents, %3")
                             .arg(m_finished)
                             .arg(m_plan.jobs.size())
                             .arg(m_plan.jobs.at(worker.job).name()));
        handOut(worker);
        break;
    default:
        break;
    }
}

/// The next document; without one, or after a signal, the worker ends.
void Crew::handOut(Worker& worker)
{
    worker.job = -1;
    if (m_signal != 0 || m_next >= m_plan.jobs.size()) {
        ::shutdown(worker.channel, SHUT_WR);
        return;
    }
    worker.job = m_next++;
    sendLine(worker.channel, QByteArray::number(worker.job));
}

void Crew::bury(Worker& worker)
{
    int status = 0;
    while (::waitpid(worker.process, &status, 0) < 0 && errno == EINTR) { }
    ::close(worker.channel);
    worker.process = -1;
    if (WIFSIGNALED(status))
        removeLeftovers(worker.job);
    if (m_signal == 0 && worker.job >= 0)
        failJob(worker.job, status);
    else if (m_signal == 0 && !worker.isReady)
        buryUnready(status);
    worker.job = -1;
}

/// A worker that could not start has said why, if it lived long enough.
void Crew::buryUnready(int status)
{
    m_canStart = false;
    m_exitStatus = WIFEXITED(status) && !m_wasReady ? WEXITSTATUS(status) : apps::exitFailed;
    if (!WIFEXITED(status))
        say(Texts::tr("The conversion could not start (%1).").arg(causeOf(status)));
}

/// What a process that was killed leaves beside its files, and its folder for temporary ones.
void Crew::removeLeftovers(int job) const
{
    removeStaleTemporaries(Workspace::place());
    const QVector<Target> targets = job < 0 ? QVector<Target>() : m_plan.jobs.at(job).targets;
    for (const Target& target : targets)
        removeStaleTemporaries(target.packing == Packing::Files ? target.path : QFileInfo(target.path).path());
}

void Crew::failJob(int job, int status)
{
    const Job& lost = m_plan.jobs.at(job);
    ++m_finished;
    m_failed += lost.name();
    say(Texts::tr("%1: the conversion of this document crashed (%2)").arg(lost.name(), causeOf(status)));
}

void Crew::signalWorkers(int signal) const
{
    for (const Worker& worker : m_workers) {
        if (worker.process > 0)
            ::kill(worker.process, signal);
    }
}

/// Everybody finishes at most the file at hand.
void Crew::stop()
{
    m_signal = pendingSignal();
    signalWorkers(SIGTERM);
    const QDeadlineTimer patience(patienceMs);
    while (isWorking()) {
        waitForAnswers(false);
        if (patience.hasExpired())
            signalWorkers(SIGKILL);
    }
}

int Crew::finish() const
{
    clearProgress();
    if (m_signal != 0)
        return stoppedBy(m_signal, m_written, m_plan);
    if (!m_wasReady && m_exitStatus != 0)
        return m_exitStatus;
    const int count = m_plan.jobs.size();
    const int converted = m_finished - m_failed.size();
    if (m_finished < count)
        say(Texts::tr("%1 documents were not tried, because no process for them could be started.")
                        .arg(count - m_finished));
    say(m_failed.isEmpty() ? Texts::tr("%1 of %2 documents were converted.").arg(converted).arg(count)
                           : Texts::tr("%1 of %2 documents were converted. Not, or not completely: %3.")
                                     .arg(QString::number(converted), QString::number(count), listOf(m_failed)));
    return converted == count ? apps::exitDone : apps::exitFailed;
}

} // namespace uiutils::convert
