#pragma once

#include "bus/connection_p.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/prctl.h>
#include <sys/stat.h>

/// Milliseconds. Whoever waits so long has waited in vain.
constexpr int patience = 60'000;

template<typename Condition> void waitUntil(const Condition& condition)
{
    if (!QTest::qWaitFor(condition, patience))
        qWarning("waited in vain");
}

/// A program of the build that ends with the test, however that ends.
class Child : public QProcess
{
public:
    ~Child() override { end(); }

    void run(const QString& program, const QStringList& arguments)
    {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(program, arguments);
        if (!waitForStarted(patience))
            qFatal("%s does not start", qPrintable(program));
    }
    void send(int signal) { ::kill(pid_t(processId()), signal); }
    /// Waits for the next line that the program prints.
    QByteArray line()
    {
        while (!canReadLine() && waitForReadyRead(patience)) { }
        return readLine().trimmed();
    }
    QByteArray ask(const QByteArray& question)
    {
        write(question + '\n');
        return line();
    }
    void end(int signal = SIGKILL)
    {
        if (state() == NotRunning)
            return;
        send(signal);
        send(SIGCONT);
        waitForFinished(patience);
    }
    /// Memory that it holds, in KiB.
    int resident() const
    {
        QFile status(QString("/proc/%1/status").arg(processId()));
        status.open(QIODevice::ReadOnly);
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmRSS:"))
                return line.mid(6).trimmed().split(' ').first().toInt();
        }
        return -1;
    }

protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

/// A bus that nobody else knows, always at the same address, and this process's session bus.
class PrivateBus
{
public:
    PrivateBus()
    {
        // Other users may come in.
        ::chmod(folder.path().toLocal8Bit().constData(), 0711);
        QDir(folder.path()).mkdir("services");
        QFile::copy(UIUTILS_SOURCE_DIR "/tests/bus/bus.conf", folder.filePath("bus.conf"));
        qputenv("DBUS_SESSION_BUS_ADDRESS", address().toLocal8Bit());
        start();
    }
    QString address() const { return "unix:path=" + folder.filePath("bus"); }
    void start()
    {
        daemon.run("dbus-daemon", {"--nofork", "--nopidfile", "--config-file=" + folder.filePath("bus.conf"),
                "--address=" + address(), "--print-address"});
        if (daemon.line().isEmpty())
            qFatal("the bus does not start");
    }
    void kill() { daemon.end(); }

    QTemporaryDir folder;
    Child daemon;
};

/// Somebody on the bus who knows nothing of services. Waits by running the event loop, so that the service may live
/// here.
class Stranger : public QObject
{
public:
    Stranger()
    {
        connect(&connection, &kiv::bus::Connection::signalReceived, this, [this](const kiv::bus::Message& signal) {
            if (signal.isSignal("org.uiutils.kiv.Service", "ItemsChanged"))
                signals_ += signal;
        });
        QString problem;
        connection.open(kiv::bus::Bus::Session, &problem);
        waitUntil([this] { return connection.isReady(); });
    }
    kiv::bus::Message ask(const kiv::bus::Message& call)
    {
        kiv::bus::Message answer;
        QEventLoop loop;
        connection.call(call, patience, this, [&](const kiv::bus::Message& reply) {
            answer = reply;
            loop.quit();
        });
        loop.exec();
        return answer;
    }
    kiv::bus::Message daemonCall(const char* member) const
    {
        return connection.newCall("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", member);
    }
    /// When it returns, what was sent before has been delivered, unless a service is slow.
    bool isConnected() { return connection.isReady() && !ask(daemonCall("GetId")).isError(); }

    kiv::bus::Connection connection;
    /// ItemsChanged alone.
    QVector<kiv::bus::Message> signals_;
};
