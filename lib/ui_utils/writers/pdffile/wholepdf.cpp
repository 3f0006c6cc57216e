#include "writers/pdffile/wholepdf_p.h"

#include "writers/pdffile/pdftexts_p.h"

#include <QBuffer>
#include <QRegularExpression>

namespace uiutils::pdf {

namespace {

bool fail(QString* error, const QString& reason)
{
    *error = reason;
    return false;
}

QByteArray tailOf(QIODevice& device)
{
    device.seek(qMax<qint64>(0, device.size() - tailSize));
    return device.read(tailSize);
}

/// All bytes: QString's own function stops at a zero.
QString fromLatin1(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

bool isTableStart(const QByteArray& bytes)
{
    static const QRegularExpression expression(QStringLiteral("^\\s{0,2}(xref\\s|\\d+\\s+\\d+\\s+obj\\b)"));
    return expression.match(fromLatin1(bytes)).hasMatch();
}

} // namespace

qint64 tablePosition(const QByteArray& tail)
{
    static const QRegularExpression expression(QStringLiteral("startxref\\s+(\\d{1,18})\\s+%%EOF\\s*\\z"));
    const QRegularExpressionMatch match = expression.match(fromLatin1(tail));
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

bool isWholePdf(QIODevice& device, QString* error)
{
    device.seek(0);
    if (!device.read(5).startsWith("%PDF-"))
        return fail(error, PdfFileTexts::tr("The file does not begin like a PDF file"));
    const qint64 position = tablePosition(tailOf(device));
    if (position < 0)
        return fail(error, PdfFileTexts::tr("The PDF file has no end"));
    if (position == 0 || !device.seek(position) || !isTableStart(device.read(32)))
        return fail(error, PdfFileTexts::tr("The PDF file has no table of its objects"));
    return true;
}

bool isWholePdf(const QByteArray& contents, QString* error)
{
    QBuffer device;
    device.setData(contents);
    device.open(QIODevice::ReadOnly);
    return isWholePdf(device, error);
}

} // namespace uiutils::pdf
