#include "writers/emitter/xmp_p.h"

#include "base/xmltext_p.h"
#include "writers/emitter/documentinformation_p.h"

#include <QRegularExpression>

namespace uiutils::pdf {

namespace {

const char begin[] = "<?xpacket begin=\"\xef\xbb\xbf\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
                     "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" x:xmptk=\"uiutils\">\n";
const char description[] = "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
                           "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
                           " xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
                           " xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n"
                           "<dc:format>application/pdf</dc:format>\n";
const char end[] = "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>";

/// A carriage return as it stands would be read as a line feed.
QByteArray escaped(const QString& text)
{
    return markupText(text).toHtmlEscaped().replace(QLatin1Char('\r'), QLatin1String("&#13;")).toUtf8();
}

/// The text goes where `form` has "%1".
QByteArray element(const char* form, const QString& text)
{
    if (text.isEmpty())
        return QByteArray();
    return QByteArray(form).replace("%1", escaped(text)) + '\n';
}

QByteArray element(const char* form, const QDateTime& date)
{
    return element(form, date.isValid() ? date.toString(Qt::ISODate) : QString());
}

} // namespace

QByteArray xmpPacket(const DocumentInformation& information)
{
    const QString part = information.archivePart > 0 ? QString::number(information.archivePart) : QString();
    QByteArray packet = QByteArray(begin) + description;
    packet += element(
            "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>", information.title);
    packet += element("<dc:creator><rdf:Seq><rdf:li>%1</rdf:li></rdf:Seq></dc:creator>", information.author);
    packet += element("<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:description>",
            information.subject);
    packet += element("<pdf:Keywords>%1</pdf:Keywords>", information.keywords);
    packet += element("<pdf:Producer>%1</pdf:Producer>", information.producer);
    packet += element("<xmp:CreatorTool>%1</xmp:CreatorTool>", information.creator);
    packet += element("<xmp:CreateDate>%1</xmp:CreateDate>", information.created);
    packet += element("<xmp:ModifyDate>%1</xmp:ModifyDate>", information.modified);
    packet += element("<pdfaid:part>%1</pdfaid:part>", part);
    packet += element("<pdfaid:conformance>%1</pdfaid:conformance>", information.archiveConformance);
    return packet + end;
}

bool isOwnXmpPacket(const QByteArray& packet)
{
    return packet.startsWith(begin);
}

void readArchiveForm(const QByteArray& packet, DocumentInformation* information)
{
    static const QRegularExpression expression(QStringLiteral(
            "<pdfaid:part>(\\d)</pdfaid:part>\\s*(?:<pdfaid:conformance>([A-Z])</pdfaid:conformance>)?"));
    const QRegularExpressionMatch match = expression.match(QString::fromUtf8(packet));
    information->archivePart = match.captured(1).toInt();
    information->archiveConformance = match.captured(2);
}

} // namespace uiutils::pdf
