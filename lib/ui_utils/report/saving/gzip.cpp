#include "report/saving/gzip_p.h"

#include "base/paths_p.h"

#include <QFile>
#include <QtDebug>

#include <csignal>
#include <cstdlib>

namespace uiutils {

namespace {

/// Lets std::system() learn how its child ended. If the host ignores SIGCHLD, the kernel forgets children at once.
class ChildrenReport
{
public:
    ChildrenReport()
    {
        struct sigaction standard = {};
        standard.sa_handler = SIG_DFL;
        sigemptyset(&standard.sa_mask);
        const bool isKnown = ::sigaction(SIGCHLD, nullptr, &m_before) == 0;
        const bool areForgotten = m_before.sa_handler == SIG_IGN || (m_before.sa_flags & SA_NOCLDWAIT) != 0;
        m_changed = isKnown && areForgotten && ::sigaction(SIGCHLD, &standard, nullptr) == 0;
    }
    ~ChildrenReport()
    {
        if (m_changed)
            ::sigaction(SIGCHLD, &m_before, nullptr);
    }
    Q_DISABLE_COPY_MOVE(ChildrenReport)

private:
    struct sigaction m_before = {};
    bool m_changed = false;
};

/// The path as one word of the shell, in double quotes.
QByteArray quoted(const QString& path)
{
    // A path that begins like an option would be one in spite of the quotes.
    QByteArray word("\"");
    if (path.startsWith(QLatin1Char('-')))
        word += "./";
    const QByteArray name = QFile::encodeName(path);
    for (const char c : name) {
        if (c == '"' || c == '$' || c == '`' || c == '\\')
            word += '\\';
        word += c;
    }
    return word + '"';
}

bool run(const char* command, const QString& place)
{
    // The shell would see the word only up to the NUL, without the closing quote.
    if (place.contains(QChar(QChar::Null)))
        return false;
    const ChildrenReport children;
    return std::system((QByteArray(command) + ' ' + quoted(place)).constData()) == 0;
}

} // namespace

bool compressFileAt(const QString& place, const QString& path)
{
    const bool isDone = run("gzip -f", place);
    if (!isDone)
        qDebug("Couldn't compress %s", qUtf8Printable(path));
    return isDone;
}

bool compressFile(const QString& path)
{
    return compressFileAt(onDisk(path), path);
}

bool uncompressFile(const QString& path)
{
    const bool isDone = run("gunzip -f", onDisk(path));
    if (!isDone)
        qDebug("Couldn't uncompress %s", qUtf8Printable(path));
    return isDone;
}

} // namespace uiutils
