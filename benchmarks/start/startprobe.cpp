// A plug-in for any program with a window: QT_QPA_GENERIC_PLUGINS=startprobe. When the first frame is on the screen it
// says what the program has cost, says so again when the frame is there that shows the whole first page, and ends the
// program (with STARTPROBE_UNTIL=first, after the first frame). A window without a property isComplete shows everything
// in its first frame. A program with a function showPage(index) in its window is asked for the pages 0 to n - 1 of
// STARTPROBE_PAGES, twice each; then the plug-in says how long the second showing took.

#include <QElapsedTimer>
#include <QFile>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QRegularExpression>

#include <cstdio>
#include <ctime>
#include <utility>

#include <unistd.h>

namespace {

double milliseconds(clockid_t clock)
{
    timespec time {};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1e6;
}

/// A moment of the process.
struct Cost
{
    double time = milliseconds(CLOCK_MONOTONIC);
    double cpu = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
};

QByteArray memory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Kilobytes that the kernel reports under that name.
int numberIn(const QByteArray& memory, const char* name)
{
    const QRegularExpression line(
            QLatin1String("^") + QLatin1String(name) + QLatin1String(": +(\\d+)"), QRegularExpression::MultilineOption);
    const QString number = line.match(QString::fromLatin1(memory)).captured(1);
    return number.isEmpty() ? -1 : number.toInt();
}

class StartProbe : public QObject
{
    Q_OBJECT

public:
    explicit StartProbe(int pages)
        : m_steps(pages * 2)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose && !m_window) {
            m_window = qobject_cast<QQuickWindow*>(watched);
            if (m_window)
                connect(m_window, &QQuickWindow::frameSwapped, this, &StartProbe::frameShown);
        }
        return false;
    }

private:
    void frameShown()
    {
        if (!std::exchange(m_isShown, true)) {
            say("first");
            if (qEnvironmentVariable("STARTPROBE_UNTIL") == QLatin1String("first"))
                ::_exit(0);
        }
        if (!m_isComplete) {
            const QVariant isComplete = m_window->property("isComplete");
            m_isComplete = !isComplete.isValid() || isComplete.toBool();
            if (!m_isComplete)
                return;
            say("complete");
        } else if (m_step >= m_steps / 2) {
            std::printf("page %d %.3f %.3f\n", m_step % (m_steps / 2), double(m_time.nsecsElapsed()) / 1e6,
                    milliseconds(CLOCK_PROCESS_CPUTIME_ID) - m_cpu);
        }
        std::fflush(stdout);
        ++m_step;
        if (m_step >= m_steps)
            ::_exit(0);
        QMetaObject::invokeMethod(this, &StartProbe::showNext, Qt::QueuedConnection);
    }

    /// What the process has cost until now, without what this has cost.
    void say(const char* what)
    {
        const Cost now;
        const QByteArray used = memory();
        std::printf("%s %.3f %.3f %d %d\n", what, now.time - m_own.time, now.cpu - m_own.cpu,
                numberIn(used, "Private_Dirty"), numberIn(used, "Rss"));
        std::fflush(stdout);
        const Cost after;
        m_own = {m_own.time + after.time - now.time, m_own.cpu + after.cpu - now.cpu};
    }

    void showNext()
    {
        m_cpu = milliseconds(CLOCK_PROCESS_CPUTIME_ID);
        m_time.start();
        if (!QMetaObject::invokeMethod(m_window, "showPage", Q_ARG(QVariant, m_step % (m_steps / 2))))
            ::_exit(1);
        m_window->update();
    }

    QQuickWindow* m_window = nullptr;
    const int m_steps;
    Cost m_own {0, 0};
    bool m_isShown = false;
    bool m_isComplete = false;
    int m_step = -1;
    double m_cpu = 0;
    QElapsedTimer m_time;
};

class StartProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "startprobe.json")

public:
    QObject* create(const QString& key, const QString&) override
    {
        if (key != QLatin1String("startprobe"))
            return nullptr;
        return new StartProbe(qEnvironmentVariableIntValue("STARTPROBE_PAGES"));
    }
};

} // namespace

#include "startprobe.moc"
