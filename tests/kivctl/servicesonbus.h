#pragma once

#include "files.h"

#include <QStandardPaths>
#include <QTemporaryDir>

/// Services in another process, on a bus that only this test and its programs know.
class ServicesOnBus
{
public:
    ~ServicesOnBus()
    {
        end();
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    /// False where there is no dbus-daemon. From then on programs that the test starts use the bus.
    bool startBus()
    {
        if (QStandardPaths::findExecutable("dbus-daemon").isEmpty())
            return false;
        for (const char* name : {"KIV_PLATFORM", "KIV_BUS"})
            qunsetenv(name);
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        while (!m_bus.canReadLine() && m_bus.waitForReadyRead(60000)) { }
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
        return true;
    }
    /// Publishes the services of the tests and of the given folders; they come on the bus in their own time.
    void start(const QStringList& folders = {})
    {
        QStringList arguments {"-s", UIUTILS_TEST_DATA_DIR "/services", "--root", m_root.path()};
        for (const QString& folder : folders)
            arguments << "-s" << folder;
        m_kivd.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_kivd.start(UIUTILS_KIVD_PROGRAM, arguments);
    }
    void end()
    {
        m_kivd.terminate();
        m_kivd.waitForFinished();
    }
    /// The process with the services.
    QProcess& process() { return m_kivd; }

private:
    QTemporaryDir m_root;
    QProcess m_bus;
    QProcess m_kivd;
};

/// kivctl, as scripts call it.
inline Outcome run(const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(UIUTILS_KIVCTL_PROGRAM, arguments);
    process.write(input);
    process.closeWriteChannel();
    return ended(process);
}
