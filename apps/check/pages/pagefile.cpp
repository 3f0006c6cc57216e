#include "check/pages/pagefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

#include <algorithm>

namespace uiutils::check {

namespace {

/// No page is longer; a file that is was named by mistake.
constexpr qint64 longestFile = 16 * 1024 * 1024;

/// The line, from 1, of a byte.
int lineOf(const QByteArray& bytes, int position)
{
    return 1 + int(std::count(bytes.cbegin(), bytes.cbegin() + position, '\n'));
}

/// The first byte that is not UTF-8; -1 for none.
int firstForeignByte(const QByteArray& bytes)
{
    QTextCodec::ConverterState whole;
    QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    codec->toUnicode(bytes.constData(), bytes.size(), &whole);
    if (whole.invalidChars == 0 && whole.remainingChars == 0)
        return -1;
    int good = 0;
    int bad = bytes.size();
    while (bad - good > 1) {
        const int middle = good + (bad - good) / 2;
        QTextCodec::ConverterState part;
        codec->toUnicode(bytes.constData(), middle, &part);
        (part.invalidChars == 0 ? good : bad) = middle;
    }
    return good;
}

/// Why the bytes are no text, and in which line; an empty text if they are one.
QString problemOfText(const QByteArray& bytes, int* line)
{
    *line = 0;
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return QStringLiteral("The file is UTF-16. QML files are UTF-8: save it in that encoding.");
    const int zero = bytes.indexOf('\0');
    if (zero >= 0) {
        *line = lineOf(bytes, zero);
        return QStringLiteral("A character with the code 0 is here, so the file is no text. Is it a QML file?");
    }
    const int foreign = firstForeignByte(bytes);
    if (foreign < 0)
        return QString();
    *line = lineOf(bytes, foreign);
    return QStringLiteral("A character here is not UTF-8 (byte 0x%1). Save the file in that encoding.")
            .arg(uchar(bytes.at(foreign)), 2, 16, QLatin1Char('0'));
}

QString problemOfFile(const QFileInfo& file)
{
    if (!file.exists())
        return QStringLiteral("The file does not exist.");
    if (!file.isFile())
        return QStringLiteral("This is no file. Name a QML file.");
    return file.size() > longestFile
            ? QStringLiteral("The file has more than 16 MiB and was not read. Is it a QML file?")
            : QString();
}

/// What the parser expects, in quotes that are not its own.
QString quoted(const QString& message)
{
    return message.section(QLatin1Char('`'), 1).section(QLatin1Char('\''), 0, -2);
}

QString inPlainWords(const QString& message)
{
    const QString token = quoted(message);
    if (message.startsWith(QLatin1String("Expected token")))
        return QStringLiteral("\"%1\" is missing here, or something before it is wrong.").arg(token);
    if (message.startsWith(QLatin1String("Unexpected token")))
        return QStringLiteral("%1 does not belong here, or something before it is wrong.")
                .arg(token.isEmpty() ? QStringLiteral("What follows") : QLatin1Char('"') + token + QLatin1Char('"'));
    if (message.startsWith(QLatin1String("Unclosed string")))
        return QStringLiteral("A text begins here whose closing quotation mark is missing in the line.");
    if (message == QLatin1String("Syntax error"))
        return QStringLiteral("This is no QML, or something before it is wrong.");
    return QStringLiteral("This cannot be read: %1.").arg(message);
}

/// The last line up to the given one that opens a quotation and does not close it; 0 for none. Texts may go over lines,
/// so that one missing mark turns all that follows inside out.
int lineWithOddQuotes(const QString& code, int line)
{
    const QVector<QStringRef> lines = code.splitRef(QLatin1Char('\n'));
    for (int i = std::min(line, lines.size()) - 1; i >= 0; --i) {
        const int quotes = lines.at(i).count(QLatin1Char('"')) - lines.at(i).count(QLatin1String("\\\""));
        if (quotes % 2 != 0)
            return i + 1;
    }
    return 0;
}

} // namespace

PageFile::PageFile(const QString& path)
    : m_path(path)
{
}

QString PageFile::folder() const
{
    return QFileInfo(m_path).path();
}

bool PageFile::isScript() const
{
    return m_path.endsWith(QLatin1String(".js")) || m_path.endsWith(QLatin1String(".mjs"));
}

std::unique_ptr<PageFile> PageFile::read(const QString& path, QVector<Finding>* findings)
{
    Finding finding {Finding::Error, path, 0, 0, QString(), problemOfFile(QFileInfo(path))};
    QFile file(path);
    if (finding.message.isEmpty() && !file.open(QIODevice::ReadOnly))
        finding.message = QStringLiteral("The file cannot be read: %1.").arg(file.errorString());
    const QByteArray bytes = finding.message.isEmpty() ? file.read(longestFile + 1) : QByteArray();
    if (finding.message.isEmpty())
        finding.message = problemOfText(bytes, &finding.line);
    if (!finding.message.isEmpty()) {
        findings->append(finding);
        return nullptr;
    }
    std::unique_ptr<PageFile> page(new PageFile(path));
    page->parse(QString::fromUtf8(bytes), findings);
    return page;
}

void PageFile::parse(const QString& code, QVector<Finding>* findings)
{
    QQmlJS::Lexer lexer(&m_engine);
    lexer.setCode(code, 1, !isScript());
    QQmlJS::Parser parser(&m_engine);
    const bool isModule = m_path.endsWith(QLatin1String(".mjs"));
    const bool isRead = !isScript() ? parser.parse() : isModule ? parser.parseModule() : parser.parseScript();
    if (isRead) {
        m_root = parser.rootNode();
        m_page = isScript() ? nullptr : parser.ast();
    }
    const QList<QQmlJS::DiagnosticMessage> messages = parser.diagnosticMessages();
    for (const QQmlJS::DiagnosticMessage& message : messages) {
        Finding finding = at(message.loc, inPlainWords(message.message));
        const int open = lineWithOddQuotes(code, finding.line);
        if (open > 0)
            finding.message += QStringLiteral(" In line %1, is a quotation mark missing?").arg(open);
        finding.weight = message.isWarning() ? Finding::Warning : Finding::Error;
        findings->append(finding);
    }
    if (!isRead && messages.isEmpty())
        findings->append({Finding::Error, m_path, 0, 0, QString(), QStringLiteral("This is no QML file.")});
}

Finding PageFile::at(const QQmlJS::SourceLocation& place, const QString& message, const QString& item) const
{
    return {Finding::Error, m_path, int(place.startLine), int(place.startColumn), item, message};
}

} // namespace uiutils::check
