#include "writers/pdffile/pdfupdate_p.h"

#include "base/xmltext_p.h"
#include "writers/emitter/documentinformation_p.h"
#include "writers/emitter/pdfsyntax_p.h"
#include "writers/emitter/xmp_p.h"
#include "writers/pdffile/pdfdate_p.h"
#include "writers/pdffile/pdfencoding_p.h"
#include "writers/pdffile/pdftail_p.h"

#include <QCryptographicHash>
#include <QMap>

#include <utility>

namespace uiutils::pdf {

namespace {

/// Empty if the value is not a string.
QString textIn(const Dictionary& information, const QByteArray& key)
{
    const QByteArray value = information.value(key);
    return textOf(Source(value).takeString());
}

QByteArray packetFor(const Tail& tail)
{
    const auto text = [&tail](const char* key) { return textIn(tail.information, key); };
    DocumentInformation information;
    information.title = text("Title");
    information.author = text("Author");
    information.subject = text("Subject");
    information.keywords = text("Keywords");
    information.creator = text("Creator");
    information.producer = text("Producer");
    information.created = dateTime(text("CreationDate"));
    information.modified = dateTime(text("ModDate"));
    readArchiveForm(tail.metadata, &information);
    return xmpPacket(information);
}

/// The first of the two names the document and stays. The second names this state of it. Null if there are none.
QByteArray identifiers(const QByteArray& earlier, const QByteArray& state)
{
    Source source(earlier);
    if (!source.take("["))
        return QByteArray();
    const QByteArray document = source.takeString();
    const QByteArray now = source.takeString();
    if (document.isNull() || now.isNull())
        return QByteArray();
    const QByteArray next = QCryptographicHash::hash(document + now + state, QCryptographicHash::Md5);
    return "[<" + document.toHex() + "> <" + next.toHex() + ">]";
}

/// What is added to the end of a file.
class Update
{
public:
    Update(const Tail& tail, bool onNewLine)
        : m_tail(tail)
        , m_bytes(onNewLine ? "" : "\n")
    {
    }

    void add(int number, const QByteArray& body);
    void addTable();
    const QByteArray& bytes() const { return m_bytes; }

private:
    int next() const { return m_tail.size + m_bytes.size(); }

    const Tail& m_tail;
    QMap<int, int> m_offsets;
    QByteArray m_bytes;
};

void Update::add(int number, const QByteArray& body)
{
    m_offsets[number] = next();
    m_bytes += QByteArray::number(number) + " 0 obj\n" + body + "\nendobj\n";
}

void Update::addTable()
{
    const int position = next();
    const int number = int(m_tail.objectCount);
    QByteArray index;
    QByteArray rows;
    m_offsets[number] = position;
    for (auto it = m_offsets.constBegin(); it != m_offsets.constEnd(); ++it) {
        const quint32 offset = qToBigEndian(quint32(it.value()));
        index += QByteArray::number(it.key()) + " 1 ";
        rows += '\1' + QByteArray(reinterpret_cast<const char*>(&offset), int(sizeof offset));
    }
    Dictionary keys = m_tail.trailer;
    keys.set("Type", "/XRef");
    keys.set("Size", QByteArray::number(number + 1));
    keys.set("Index", '[' + index + ']');
    keys.set("W", "[1 4 0]");
    keys.set("Prev", QByteArray::number(m_tail.tablePosition));
    keys.set("Length", QByteArray::number(rows.size()));
    const QByteArray identifier = identifiers(m_tail.trailer.value("ID"), m_bytes);
    keys.remove("ID");
    if (!identifier.isNull())
        keys.set("ID", identifier);
    add(number, sourceOf(keys) + "stream\n" + rows + "\nendstream");
    m_bytes += "startxref\n" + QByteArray::number(position) + "\n%%EOF\n";
}

class UpdatedFile final : public DescribedFile
{
public:
    UpdatedFile(const QByteArray& contents, Tail tail)
        : m_contents(contents)
        , m_tail(std::move(tail))
    {
    }

    QString entry(const QString& key) const override { return textIn(m_tail.information, key.toUtf8()); }

    bool setEntry(const QString& key, const QString& value, QString* /*error*/) override
    {
        // Without what the XMP packet, which says the same, cannot hold.
        m_tail.information.set(key.toUtf8(), textString(m_tail.metadataNumber > 0 ? markupText(value) : value));
        return true;
    }

    QByteArray save(QString* error) override;

private:
    QByteArray m_contents;
    Tail m_tail;
};

QByteArray UpdatedFile::save(QString* /*error*/)
{
    Update update(m_tail, m_contents.at(m_tail.size - 1) == '\n');
    update.add(m_tail.informationNumber, sourceOf(m_tail.information));
    if (m_tail.metadataNumber > 0) {
        const QByteArray packet = packetFor(m_tail);
        update.add(m_tail.metadataNumber,
                "<</Type/Metadata/Subtype/XML/Length " + QByteArray::number(packet.size()) + ">>stream\n" + packet
                        + "\nendstream");
    }
    update.addTable();
    // Files may be large: there is one copy, and no more.
    QByteArray contents;
    contents.reserve(m_tail.size + update.bytes().size());
    contents.append(m_contents.constData(), m_tail.size);
    contents += update.bytes();
    return contents;
}

} // namespace

std::unique_ptr<DescribedFile> openForUpdate(const QByteArray& contents)
{
    auto tail = readTail(contents);
    return tail ? std::make_unique<UpdatedFile>(contents, std::move(*tail)) : nullptr;
}

} // namespace uiutils::pdf
