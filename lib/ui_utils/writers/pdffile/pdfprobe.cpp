#include "writers/pdffile/pdfprobe_p.h"

#include "base/ownplace_p.h"
#include "writers/pdffile/pdfengine_p.h"
#include "writers/pdffile/pdfprobeprotocol_p.h"
#include "writers/pdffile/pdftexts_p.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace uiutils {

namespace {

class Descriptor
{
public:
    explicit Descriptor(int fd = -1)
        : m_fd(fd)
    {
    }
    ~Descriptor() { close(); }
    Q_DISABLE_COPY(Descriptor)

    int value() const { return m_fd; }
    bool isOpen() const { return m_fd >= 0; }
    void reset(int fd)
    {
        close();
        m_fd = fd;
    }
    void close()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }

private:
    int m_fd;
};

/// Found from the place of the library, never from the environment or the current folder, because it is trusted.
QString installedHelper()
{
    const QFileInfo helper(besideOwnFile(
            {QLatin1String(UIUTILS_PDF_PROBE_FROM_LIBRARY), QLatin1String("../libexec/uiutils/uiutils-pdf-probe")}));
    return helper.isFile() && helper.isExecutable() ? helper.filePath() : QString();
}

/// The bytes as a file that nobody else can change.
bool fill(Descriptor& file, const QByteArray& contents)
{
    file.reset(::memfd_create("uiutils-pdf", MFD_CLOEXEC));
    qint64 done = 0;
    while (file.isOpen() && done < contents.size()) {
        const ssize_t n = ::write(file.value(), contents.constData() + done, size_t(contents.size() - done));
        if (n < 0 && errno != EINTR)
            return false;
        done += qMax<ssize_t>(n, 0);
    }
    return file.isOpen();
}

/// A helper that was started, until it has ended.
class Helper
{
public:
    Helper(const QString& program, int file)
    {
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC) != 0) {
            m_error = errno;
            return;
        }
        m_answer.reset(ends[0]);
        const Descriptor writing(ends[1]);
        m_started = spawn(QFile::encodeName(program), file, writing.value());
    }
    ~Helper()
    {
        if (!m_started)
            return;
        if (m_running)
            ::kill(m_pid, SIGKILL);
        // A host that handles the end of children itself may already have waited for this one.
        while (::waitpid(m_pid, nullptr, 0) < 0 && errno == EINTR) { }
    }
    Q_DISABLE_COPY(Helper)

    bool isStarted() const { return m_started; }

    /// Why it was not started: a value of errno.
    int error() const { return m_error; }

    /// The result; -1 if it ended without one, or if the time is up: it may take `patience` milliseconds in all, and
    /// has to leave as many of them as it took to load the file, because the file is then loaded again.
    int result(int patience)
    {
        QElapsedTimer clock;
        clock.start();
        int deadline = patience / 2;
        int said = nextByte(QDeadlineTimer(deadline));
        while (said == pdfprobe::started || said == pdfprobe::loaded) {
            m_began = true;
            if (said == pdfprobe::loaded)
                deadline = patience - int(clock.elapsed());
            said = nextByte(QDeadlineTimer(qMax<qint64>(0, deadline - clock.elapsed())));
        }
        return said;
    }

    bool hasBegun() const { return m_began; }
    bool isRunning() const { return m_running; }

private:
    int nextByte(const QDeadlineTimer& deadline)
    {
        unsigned char byte = 0;
        ssize_t got = -1;
        while (got < 0) {
            pollfd ready {m_answer.value(), POLLIN, 0};
            const int n = ::poll(&ready, 1, int(deadline.remainingTime()));
            if (n == 0 || (n < 0 && errno != EINTR))
                return -1;
            got = n < 0 ? -1 : ::read(m_answer.value(), &byte, 1);
            if (got < 0 && errno != EINTR)
                return -1;
        }
        m_running = got > 0;
        return got > 0 ? byte : -1;
    }

    bool spawn(const QByteArray& program, int file, int answer)
    {
        posix_spawn_file_actions_t actions;
        posix_spawnattr_t attributes;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawnattr_init(&attributes);
        ::posix_spawn_file_actions_adddup2(&actions, file, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions, answer, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        // The helper must be ended by signals, whatever this process ignores or blocks.
        sigset_t signalSet;
        ::sigemptyset(&signalSet);
        ::posix_spawnattr_setsigmask(&attributes, &signalSet);
        ::sigfillset(&signalSet);
        ::posix_spawnattr_setsigdefault(&attributes, &signalSet);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

        // The helper finds PoDoFo where this process found it.
        QByteArray libraries = "LD_LIBRARY_PATH=" + qgetenv("LD_LIBRARY_PATH");
        QByteArray name = program;
        char* const arguments[] = {name.data(), nullptr};
        char* const environment[] = {libraries.data(), nullptr};
        const int failure = ::posix_spawn(&m_pid, program.constData(), &actions, &attributes, arguments, environment);
        ::posix_spawnattr_destroy(&attributes);
        ::posix_spawn_file_actions_destroy(&actions);
        m_error = failure;
        m_running = failure == 0;
        return failure == 0;
    }

    Descriptor m_answer;
    pid_t m_pid = -1;
    bool m_started = false;
    bool m_began = false;
    bool m_running = false;
    int m_error = 0;
};

bool passesUnseen()
{
    static const bool told = [] {
        qWarning("PDF files are loaded without being tried first: the helper program uiutils-pdf-probe is not "
                 "installed");
        return true;
    }();
    return told;
}

QString cannotTry(const QString& reason)
{
    return pdf::PdfFileTexts::tr("The file cannot be tried first: %1").arg(reason);
}

} // namespace

PdfProbe::PdfProbe(int patience)
    : PdfProbe(installedHelper(), patience)
{
}

PdfProbe::PdfProbe(const QString& helper, int patience)
    : m_helper(helper)
    , m_patience(patience)
{
}

bool PdfProbe::passes(const QByteArray& contents, QString* error) const
{
    if (m_helper.isEmpty() && !contents.isEmpty())
        return passesUnseen();
    *error = problemOf(contents);
    return error->isEmpty();
}

/// No answer means rejection, because somebody may have prevented the answer on purpose.
QString PdfProbe::problemOf(const QByteArray& contents) const
{
    if (contents.isEmpty())
        return pdf::PdfFileTexts::tr("The file is empty");
    Descriptor file;
    if (!fill(file, contents))
        return cannotTry(qt_error_string(errno));
    Helper helper(m_helper, file.value());
    if (!helper.isStarted())
        return cannotTry(qt_error_string(helper.error()));
    const int result = helper.result(m_patience);
    if (result >= 0)
        return result == pdfprobe::harmless ? QString() : pdf::errorText(result);
    if (helper.isRunning())
        return pdf::PdfFileTexts::tr("Reading the file takes too long");
    return helper.hasBegun() ? pdf::PdfFileTexts::tr("The file is not safe to read")
                             : cannotTry(pdf::PdfFileTexts::tr("%1 gives no answer").arg(m_helper));
}

} // namespace uiutils
