#include "helper.h"

#include <QCoreApplication>

#include <csignal>
#include <sys/prctl.h>

namespace bench {

namespace {

constexpr int patienceMs = 120'000;
constexpr char busVariable[] = "DBUS_SESSION_BUS_ADDRESS";

} // namespace

OwnProcess::OwnProcess(const QString& program, const QStringList& arguments)
{
    setProcessChannelMode(ForwardedErrorChannel);
    start(program, arguments);
    if (!waitForStarted())
        qFatal("%s does not start: %s", qPrintable(program), qPrintable(errorString()));
}

OwnProcess::~OwnProcess()
{
    constexpr int endMs = 10'000;
    closeWriteChannel();
    if (waitForFinished(endMs))
        return;
    kill();
    waitForFinished();
}

QByteArray OwnProcess::nextLine()
{
    while (!canReadLine()) {
        if (!waitForReadyRead(patienceMs))
            qFatal("%s does not answer: %s", qPrintable(arguments().join(QLatin1Char(' '))), qPrintable(errorString()));
    }
    return readLine().trimmed();
}

void OwnProcess::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

PrivateBus::PrivateBus()
    : m_daemon(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")})
{
    qputenv(busVariable, m_daemon.nextLine());
    qunsetenv("KIV_BUS");
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
}

Helper::Helper(const QString& role)
    : m_process(QCoreApplication::applicationFilePath(), {QStringLiteral("--role"), role})
{
}

void Helper::tell(const QString& command, const QVector<int>& arguments)
{
    QByteArray line = command.toLatin1();
    for (const int argument : arguments)
        line += ' ' + QByteArray::number(argument);
    m_process.write(line + '\n');
    m_process.waitForBytesWritten();
}

QVector<double> Helper::answer()
{
    QVector<double> numbers;
    const QList<QByteArray> words = m_process.nextLine().split(' ');
    for (const QByteArray& word : words)
        numbers += word.toDouble();
    return numbers;
}

QVector<double> Helper::ask(const QString& command, const QVector<int>& arguments)
{
    tell(command, arguments);
    return answer();
}

} // namespace bench
