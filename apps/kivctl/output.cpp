#include "output.h"

#include "common/complaint.h"
#include "texts.h"

#include <cerrno>
#include <unistd.h>

namespace uiutils::kivctl {

namespace {

bool isDirectionMark(ushort code)
{
    return code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

/// What moves the cursor, ends a line, or makes one part of a line pass for another.
bool isObeyed(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph || isDirectionMark(c.unicode());
}

QString escape(QChar c)
{
    if (c == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (c == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    return QStringLiteral("\\u") + QString::number(c.unicode(), 16).rightJustified(4, QLatin1Char('0')).toUpper();
}

/// With the characters from `first` on escaped, as far as a terminal would obey them.
QString escaped(const QString& text, QChar first)
{
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text) {
        if (c >= first && isObeyed(c))
            shown += escape(c);
        else
            shown += c;
    }
    return shown;
}

void complainOf(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        complain(text, apps::exitFailed);
}

} // namespace

QString visible(const QString& text)
{
    return escaped(text, QChar(0));
}

QByteArray jsonText(const QJsonDocument& document, QJsonDocument::JsonFormat format)
{
    // JSON itself escapes what comes earlier, and its own line ends stay.
    return escaped(QString::fromUtf8(document.toJson(format)), QChar(0x7f)).toUtf8();
}

QByteArray tableLine(const QStringList& cells)
{
    QStringList shown;
    for (const QString& cell : cells)
        shown += visible(cell);
    return shown.join(QLatin1Char('\t')).toUtf8() + '\n';
}

int print(const QByteArray& bytes)
{
    int done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(STDOUT_FILENO, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EPIPE)
            return apps::exitDone;
        if (count < 0)
            return complain(
                    Texts::tr("Standard output cannot be written: %1.").arg(qt_error_string(errno)), apps::exitFailed);
        done += int(count);
    }
    return apps::exitDone;
}

int complain(const QString& text, int exitStatus)
{
    return apps::complain(visible(text), exitStatus);
}

void complainOfWarnings()
{
    qInstallMessageHandler(complainOf);
}

} // namespace uiutils::kivctl
