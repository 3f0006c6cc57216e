#include "console.h"

#include "common/complaint.h"
#include "texts.h"

#include <QLoggingCategory>

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace uiutils::convert {

namespace {

bool isProgressShown = false;

std::function<void(const QString&)>& messageSink()
{
    static std::function<void(const QString&)> sink;
    return sink;
}

QString& warningSubject()
{
    static QString subject;
    return subject;
}

QString printable(QString text)
{
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

void print(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stderr);
}

/// Characters in a terminal's line; 0 without a terminal that can return to the start of its line.
int terminalWidth()
{
    winsize size {};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || qgetenv("TERM") == "dumb")
        return 0;
    return size.ws_col > 0 ? size.ws_col : 80;
}

void sayQtMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    const QString message = type == QtWarningMsg ? Texts::tr("warning: %1").arg(text) : text;
    say(warningSubject().isEmpty() ? message : warningSubject() + QStringLiteral(": ") + message);
}

} // namespace

void say(const QString& message)
{
    if (messageSink())
        return messageSink()(printable(message));
    clearProgress();
    apps::complain(printable(message));
}

void setMessageSink(const std::function<void(const QString&)>& sink)
{
    messageSink() = sink;
}

void showProgress(const QString& text)
{
    const int width = messageSink() ? 0 : terminalWidth();
    if (width == 0)
        return;
    clearProgress();
    // A wrapped line could not be removed.
    print(printable(text).left(width - 1));
    isProgressShown = true;
}

void clearProgress()
{
    if (isProgressShown)
        print(QStringLiteral("\r\033[K"));
    isProgressShown = false;
}

void installWarningHandler()
{
    // The library's notes for developers do not concern users, who may enable them by QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    qInstallMessageHandler(sayQtMessage);
}

void setWarningSubject(const QString& name)
{
    warningSubject() = name;
}

} // namespace uiutils::convert
