#pragma once

#include "pdfreading.h"

#include <QDateTime>
#include <QXmlStreamReader>
#include <QtEndian>

/// The requirements of PDF/A-2u, one by one, on files of the kind that the library writes, and stricter where it needs
/// less than they permit. There is no validator among the packages that the tests use, and this is no substitute for
/// one.

/// The entries of an XMP packet: the text of each element, with that of list items at the name of the list's owner.
inline QMap<QString, QString> entriesOfXmp(const QByteArray& packet)
{
    QMap<QString, QString> entries;
    QStringList path;
    QXmlStreamReader xml(packet);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && !xml.qualifiedName().startsWith(QLatin1String("rdf:")))
            path += xml.qualifiedName().toString();
        if (xml.isCharacters() && !path.isEmpty())
            entries[path.last()] += xml.text();
        if (xml.isEndElement() && !xml.qualifiedName().startsWith(QLatin1String("rdf:")))
            path.removeLast();
    }
    return xml.hasError() ? QMap<QString, QString>() : entries;
}

inline QString faultOfMetadata(const PdfObjects& objects)
{
    const QByteArray packet = objects.stream(objects.catalog().value("/Metadata"));
    const QMap<QString, QString> entries = entriesOfXmp(packet);
    const QJsonObject about = objects.dictionary(objects.trailer().value("/Info"));
    const QPair<const char*, const char*> names[] {{"/Title", "dc:title"}, {"/Author", "dc:creator"},
            {"/Subject", "dc:description"}, {"/Keywords", "pdf:Keywords"},
            {"/Producer", "pdf:Producer"}, {"/Creator", "xmp:CreatorTool"},
            {"/CreationDate", "xmp:CreateDate"}, {"/ModDate", "xmp:ModifyDate"}};
    for (const auto& [key, name] : names) {
        QString value = about.value(key).toString().mid(2);
        if (value.startsWith("D:"))
            value = QDateTime::fromString(value.mid(2, 14), "yyyyMMddHHmmss").toString(Qt::ISODate);
        if (value != entries.value(name).left(value.startsWith("20") ? 19 : -1))
            return QString("%1 differs: %2, %3").arg(key, value, entries.value(name));
    }
    const bool isDeclared = entries.value("pdfaid:part") == "2" && entries.value("pdfaid:conformance") == "U";
    return isDeclared ? QString() : QString("not declared");
}

inline QString faultOfColors(const PdfObjects& objects)
{
    const QJsonObject intent = objects.dictionary(objects.catalog().value("/OutputIntents").toArray().at(0));
    const QByteArray profile = objects.stream(intent.value("/DestOutputProfile"));
    if (intent.value("/S") != "/GTS_PDFA1" || !intent.contains("/OutputConditionIdentifier") || profile.size() < 128)
        return "no output intent";
    const bool isProfile = qFromBigEndian<quint32>(profile.constData()) == quint32(profile.size()) && profile.at(8) <= 4
            && profile.mid(16, 4) == "RGB " && profile.mid(36, 4) == "acsp";
    const bool hasThree = objects.dictionary(intent.value("/DestOutputProfile")).value("/N").toInt() == 3;
    return isProfile && hasThree ? QString() : QString("no RGB profile");
}

/// Of a TrueType program, in thousandths.
inline double widthIn(const QByteArray& program, int glyph)
{
    QMap<QByteArray, QByteArray> tables;
    const auto number = [](const QByteArray& bytes, int at) { return qFromBigEndian<quint16>(bytes.constData() + at); };
    for (int table = 0; table < number(program, 4); ++table) {
        const char* const entry = program.constData() + 12 + 16 * table;
        const int offset = int(qFromBigEndian<quint32>(entry + 8));
        tables[QByteArray(entry, 4)] = program.mid(offset, int(qFromBigEndian<quint32>(entry + 12)));
    }
    const int last = number(tables.value("hhea"), 34) - 1;
    return 1000.0 * number(tables.value("hmtx"), 4 * qMin(glyph, last)) / number(tables.value("head"), 18);
}

inline QMap<int, double> widthsOf(const QJsonArray& list)
{
    QMap<int, double> widths;
    for (int i = 0; i + 1 < list.size(); i += 2) {
        const QJsonArray run = list.at(i + 1).toArray();
        for (int at = 0; at < run.size(); ++at)
            widths[list.at(i).toInt() + at] = run.at(at).toDouble();
    }
    return widths;
}

inline QMap<int, QString> textsOf(const QByteArray& map)
{
    QMap<int, QString> texts;
    static const QRegularExpression entry("<(\\w{4})><(\\w*)>\\n");
    auto matches = entry.globalMatch(QString::fromLatin1(map));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        for (int at = 0; at < match.capturedLength(2); at += 4)
            texts[match.captured(1).toInt(nullptr, 16)] += QChar(match.captured(2).mid(at, 4).toUShort(nullptr, 16));
    }
    return texts;
}

inline QString faultOfFont(const PdfObjects& objects, const QJsonObject& font, const QSet<quint16>& codes)
{
    const QJsonObject descendant = objects.dictionary(font.value("/DescendantFonts").toArray().at(0));
    const QJsonObject descriptor = objects.dictionary(descendant.value("/FontDescriptor"));
    const QByteArray program = objects.stream(descriptor.value("/FontFile2"));
    if (program.isEmpty() && objects.stream(descriptor.value("/FontFile3")).isEmpty())
        return "a font is not embedded";
    if (descendant.value("/Subtype") == "/CIDFontType2" && descendant.value("/CIDToGIDMap") != "/Identity")
        return "no map of glyphs";
    const QMap<int, double> widths = widthsOf(descendant.value("/W").toArray());
    const QMap<int, QString> texts = textsOf(objects.stream(font.value("/ToUnicode")));
    static const QRegularExpression longSection("\\b(\\d{4,}|[2-9]\\d\\d|1(?!00)\\d\\d) beginbfchar");
    if (longSection.match(QString::fromLatin1(objects.stream(font.value("/ToUnicode")))).hasMatch())
        return "a section of more than 100 texts";
    static const QRegularExpression wrong("[\\x{0}\\x{feff}\\x{fffe}]");
    for (const quint16 code : codes) {
        if (code == 0)
            return "a glyph that stands for none";
        const QString text = texts.value(code);
        if (text.isEmpty() || text.contains(wrong) || !text.isValidUtf16())
            return QString("glyph %1 has no text").arg(code);
        if (!program.isEmpty() && qAbs(widths.value(code) - widthIn(program, code)) > 1)
            return QString("glyph %1 has another width").arg(code);
    }
    return QString();
}

inline QString faultOfPages(const PdfObjects& objects)
{
    int glyphs = 0;
    for (const auto& [reference, page] : objects.all()) {
        if (page.value("/Type") != "/Page")
            continue;
        const QJsonObject fonts = objects.dictionary(objects.dictionary(page.value("/Resources")).value("/Font"));
        const QMap<QByteArray, QSet<quint16>> codes = codesOf(objects.stream(page.value("/Contents")));
        for (auto it = codes.begin(); it != codes.end(); ++it) {
            glyphs += it->size();
            const QString fault = faultOfFont(objects, objects.dictionary(fonts.value(it.key())), *it);
            if (!fault.isEmpty())
                return fault;
        }
    }
    return glyphs > 10 ? QString() : QString("no text");
}

inline QString faultsOfArchive(const QString& path)
{
    const PdfObjects objects(path);
    const QByteArray file = contentsOf(path);
    QStringList faults {faultOfMetadata(objects), faultOfColors(objects), faultOfPages(objects)};
    const auto isAscii = [](char c) { return uchar(c) < 0x80; };
    if (!file.startsWith("%PDF-1.7\n%") || std::any_of(file.begin() + 10, file.begin() + 14, isAscii))
        faults += "no line of bytes after the header";
    if (!file.contains("<?xpacket begin="))
        faults += "XMP is compressed";
    if (objects.trailer().value("/ID").toArray().size() != 2)
        faults += "no identifier";
    const QString all = outputOf("qpdf", {"--json=2", "--json-key=qpdf", "--json-stream-data=none", path});
    for (const char* word : {"LZWDecode", "/Crypt", "/Encrypt", "/JavaScript", "/JS\"", "/AA\"",
                 "/OpenAction", "/Launch",
                 "/EmbeddedFile", "/Interpolate\": true", "/Group\"", "/TR\":", "/Alternates", "/OPI"}) {
        if (all.contains(word))
            faults += word;
    }
    faults.removeAll(QString());
    return faults.join(", ");
}
