#include "writers/pdfprobe_p.h"

#include "writers/pdfdocument_p.h"
#include "writers/pdfprobeprotocol_p.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
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

/// The file that this code was loaded from: the library, or a program that has its objects.
QString ownFile()
{
    Dl_info info {};
    link_map* map = nullptr;
    const auto* address = reinterpret_cast<const void*>(&ownFile);
    const bool found = ::dladdr1(address, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) != 0;
    const QString name = found && map ? QFile::decodeName(map->l_name) : QString();
    // The program itself has no name there.
    return QFileInfo(name.isEmpty() ? QStringLiteral("/proc/self/exe") : name).canonicalFilePath();
}

/// Found from where the library lies, never from the environment or the current folder: it is started on
/// trust.
QString installedHelper()
{
    const QFileInfo own(ownFile());
    for (const QLatin1String place :
            {QLatin1String(UIUTILS_PDF_PROBE_FROM_LIBRARY), QLatin1String("../libexec/uiutils/uiutils-pdf-probe")}) {
        const QFileInfo helper(own.path() + QLatin1Char('/') + place);
        if (own.isAbsolute() && helper.isFile() && helper.isExecutable())
            return helper.canonicalFilePath();
    }
    return QString();
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
        if (program.isEmpty() || ::pipe2(ends, O_CLOEXEC) != 0)
            return;
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
        // A host that has its own ideas of children may have taken this one's end already.
        while (::waitpid(m_pid, nullptr, 0) < 0 && errno == EINTR) { }
    }
    Q_DISABLE_COPY(Helper)

    bool isStarted() const { return m_started; }

    /// Up to two bytes: what it says before it ends or the time is up.
    QByteArray answer(const QDeadlineTimer& deadline)
    {
        QByteArray said;
        while (said.size() < 2) {
            pollfd ready {m_answer.value(), POLLIN, 0};
            const int n = ::poll(&ready, 1, int(deadline.remainingTime()));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return said;
            char byte = 0;
            const ssize_t got = ::read(m_answer.value(), &byte, 1);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0)
                break;
            said += byte;
        }
        m_running = false;
        return said;
    }

    bool isRunning() const { return m_running; }

private:
    bool spawn(const QByteArray& program, int file, int answer)
    {
        posix_spawn_file_actions_t actions;
        posix_spawnattr_t attributes;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawnattr_init(&attributes);
        ::posix_spawn_file_actions_adddup2(&actions, file, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions, answer, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        // It must be possible to end it, whatever this process ignores or blocks.
        sigset_t signalSet;
        ::sigemptyset(&signalSet);
        ::posix_spawnattr_setsigmask(&attributes, &signalSet);
        ::sigfillset(&signalSet);
        ::posix_spawnattr_setsigdefault(&attributes, &signalSet);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

        // Where this process found PoDoFo, it is to be found.
        QByteArray libraries = "LD_LIBRARY_PATH=" + qgetenv("LD_LIBRARY_PATH");
        QByteArray name = program;
        char* const arguments[] = {name.data(), nullptr};
        char* const environment[] = {libraries.data(), nullptr};
        const int failure = ::posix_spawn(&m_pid, program.constData(), &actions, &attributes, arguments, environment);
        ::posix_spawnattr_destroy(&attributes);
        ::posix_spawn_file_actions_destroy(&actions);
        m_running = failure == 0;
        return failure == 0;
    }

    Descriptor m_answer;
    pid_t m_pid = -1;
    bool m_started = false;
    bool m_running = false;
};

bool passesUnseen(const QString& helper)
{
    static const bool told = [&helper] {
        qWarning("PDF files are loaded without being tried out first: the helper program uiutils-pdf-probe %s",
                helper.isEmpty() ? "is not where it was installed" : "cannot be started");
        return true;
    }();
    return told;
}

QString text(const char* words)
{
    return QCoreApplication::translate("PdfProbe", words);
}

} // namespace

PdfProbe::PdfProbe()
    : m_helper(installedHelper())
{
}

PdfProbe::PdfProbe(const QString& helper, int patience)
    : m_helper(helper)
    , m_patience(patience)
{
}

bool PdfProbe::passes(const QByteArray& contents, QString* error) const
{
    Descriptor file;
    if (contents.isEmpty() || !fill(file, contents)) {
        *error = contents.isEmpty() ? text(QT_TRANSLATE_NOOP("PdfProbe", "The file is empty"))
                                    : text(QT_TRANSLATE_NOOP("PdfProbe", "There is no memory to try the file out"));
        return false;
    }
    Helper helper(m_helper, file.value());
    if (!helper.isStarted())
        return passesUnseen(m_helper);
    const int patience
            = m_patience > 0 ? m_patience : 2000 * int(pdfprobe::processorSeconds(std::uint64_t(contents.size())));
    const QByteArray answer = helper.answer(QDeadlineTimer(patience));
    if (answer.isEmpty() && !helper.isRunning())
        return passesUnseen(m_helper);
    if (answer.size() < 2) {
        *error = helper.isRunning() ? text(QT_TRANSLATE_NOOP("PdfProbe", "Reading the file takes too long"))
                                    : text(QT_TRANSLATE_NOOP("PdfProbe", "The file cannot be read without harm"));
        return false;
    }
    const auto result = static_cast<unsigned char>(answer.at(1));
    if (result != pdfprobe::harmless)
        *error = pdf::errorText(result);
    return result == pdfprobe::harmless;
}

} // namespace uiutils
