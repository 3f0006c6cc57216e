#include <kiv/plovjsondocument.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PlovJsonDocument)
};

/// "line:column" of a byte offset, both counted from 1, columns in characters.
QString textPosition(const QByteArray& text, int offset)
{
    const QByteArray before = text.left(offset);
    const int lineStart = before.lastIndexOf('\n') + 1;
    const int line = before.count('\n') + 1;
    const int column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
    return QStringLiteral("%1:%2").arg(line).arg(column);
}

/// An upper bound: brackets inside texts are counted too.
int containersIn(const QByteArray& text)
{
    return int(std::count_if(text.begin(), text.end(), [](char c) { return c == '{' || c == '['; }));
}

} // namespace

bool PlovJsonDocument::readFile(const QString& path)
{
    m_document = QJsonDocument();
    m_error.clear();

    // A pipe or a device could keep the reader waiting forever.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return fail(Texts::tr("%1: not a regular file").arg(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Texts::tr("%1: cannot be opened: %2").arg(path, file.errorString()));
    if (file.size() > maximumFileSize)
        return fail(Texts::tr("%1: larger than the %2 MiB that a document may have")
                            .arg(path, QString::number(maximumFileSize / 1024 / 1024)));

    // One byte more than the size reveals a file that grew. A buffer of the maximum size would be allocated completely.
    const QByteArray text = file.read(qMin(file.size() + 1, maximumFileSize));
    if (file.error() != QFileDevice::NoError)
        return fail(Texts::tr("%1: cannot be read: %2").arg(path, file.errorString()));

    if (containersIn(text) > maximumContainers)
        return fail(Texts::tr("%1: holds more than the %2 objects and lists that a document may have")
                            .arg(path, QString::number(maximumContainers)));

    QJsonParseError parseError {};
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return fail(
                QStringLiteral("%1:%2: %3").arg(path, textPosition(text, parseError.offset), parseError.errorString()));
    if (!document.isObject())
        return fail(Texts::tr("%1:1:1: the root of the document is not an object").arg(path));

    m_document = document;
    return true;
}

void PlovJsonDocument::setObject(const QJsonObject& object)
{
    m_document.setObject(object);
    m_error.clear();
}

bool PlovJsonDocument::fail(const QString& error)
{
    m_error = error;
    return false;
}
