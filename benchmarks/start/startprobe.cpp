// A plug-in for any program with a window: QT_QPA_GENERIC_PLUGINS=startprobe. When the first frame is on the screen it says
// what the program has cost, and ends it. A program with a function showPage(index) in its window is asked for the pages
// 0 to n - 1 of STARTPROBE_PAGES, twice each; then the plug-in says how long the second showing took.

#include <QElapsedTimer>
#include <QFile>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QRegularExpression>

#include <cstdio>
#include <ctime>

#include <unistd.h>

namespace {

double milliseconds(clockid_t clock)
{
    timespec time {};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1e6;
}

/// Kilobytes of this process that the kernel reports under that name.
int memory(const char* name)
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QRegularExpression line(QLatin1String("^") + QLatin1String(name) + QLatin1String(": +(\\d+)"),
            QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(file.readAll())).captured(1).toInt();
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
        if (m_step < 0) {
            std::printf("first %.3f %.3f %d %d\n", milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_PROCESS_CPUTIME_ID),
                    memory("Private_Dirty"), memory("Rss"));
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
