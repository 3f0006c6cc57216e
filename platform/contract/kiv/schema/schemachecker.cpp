#include <kiv/schemachecker_p.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

#include <memory>
#include <mutex>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SchemaValidator)
};

template<typename T, void (*Free)(T*)> struct Freed
{
    void operator()(T* object) const { Free(object); }
};
using Document = std::unique_ptr<xmlDoc, Freed<xmlDoc, xmlFreeDoc>>;
using Parser = std::unique_ptr<xmlParserCtxt, Freed<xmlParserCtxt, xmlFreeParserCtxt>>;
using Schema = std::unique_ptr<xmlSchema, Freed<xmlSchema, xmlSchemaFree>>;
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Freed<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt>>;
using SchemaCheck = std::unique_ptr<xmlSchemaValidCtxt, Freed<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt>>;

/// Collects errors in words.
class Complaints
{
public:
    void clear()
    {
        m_texts.clear();
        m_count = 0;
    }

    void add(int line, const QString& text)
    {
        constexpr int most = 100;
        constexpr int longest = 500;
        if (++m_count > most)
            return;
        const QString shown = text.size() > longest ? text.left(longest) + QChar(0x2026) : text;
        m_texts += line > 0 ? Texts::tr("line %1: %2").arg(QString::number(line), shown) : shown;
    }

    bool isEmpty() const { return m_count == 0; }

    QStringList texts() const
    {
        const int left = m_count - m_texts.size();
        return left > 0 ? m_texts + QStringList(Texts::tr("and %1 more").arg(left)) : m_texts;
    }

private:
    QStringList m_texts;
    int m_count = 0;
};

#if LIBXML_VERSION >= 21200
using Error = const xmlError*;
#else
using Error = xmlError*;
#endif

void collect(void* complaints, Error error)
{
    if (!error || error->level < XML_ERR_ERROR)
        return;
    QString text = QString::fromUtf8(error->message).simplified();
    // An error in a file that the schema names.
    if (error->file && error->domain != XML_FROM_SCHEMASV)
        text = QFileInfo(QUrl::fromPercentEncoding(error->file)).fileName() + QStringLiteral(": ") + text;
    static_cast<Complaints*>(complaints)->add(error->line, text);
}

/// The settings of the XML library for this thread, as long as the object lives: which files may be loaded, and where
/// errors are reported.
class Session
{
public:
    /// `folder` ends in "/"; an empty one allows no file at all, and schemas that a text names are ignored.
    Session(Complaints& complaints, const QString& folder)
        : m_complaints(complaints)
        , m_folder(folder)
        , m_function(xmlStructuredError)
        , m_context(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(&complaints, collect);
        s_current = this;
    }
    ~Session()
    {
        s_current = nullptr;
        xmlSetStructuredErrorFunc(m_context, m_function);
    }
    Q_DISABLE_COPY_MOVE(Session)

    /// The object of this thread, or null.
    static Session* current() { return s_current; }

    /// The path of a file that may be loaded, or empty.
    QByteArray allowed(const char* url) const
    {
        if (m_folder.isEmpty())
            return {};
        QString path = QUrl::fromPercentEncoding(url);
        const QLatin1String scheme("file://");
        if (path.startsWith(scheme))
            path.remove(0, scheme.size());
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (canonical.startsWith(m_folder) && QFileInfo(canonical).isFile())
            return QFile::encodeName(canonical);
        m_complaints.add(0, Texts::tr("%1 is not a file in the folder of the schema").arg(path));
        return {};
    }

private:
    static thread_local Session* s_current;
    Complaints& m_complaints;
    QString m_folder;
    xmlStructuredErrorFunc m_function;
    void* m_context;
};

thread_local Session* Session::s_current = nullptr;

xmlExternalEntityLoader otherLoader = nullptr;

/// The only way in which the XML library opens files that a text names.
xmlParserInputPtr loadEntity(const char* url, const char* id, xmlParserCtxtPtr context)
{
    const Session* const session = Session::current();
    if (!session)
        return otherLoader(url, id, context);
    const QByteArray path = session->allowed(url);
    return path.isEmpty() ? nullptr : xmlNewInputFromFile(context, path.constData());
}

/// Installs our loader in front of the process's loader, which continues to serve all others. Done once: a loader that
/// is installed later may call ours.
void installLoader()
{
    static std::once_flag flag;
    std::call_once(flag, [] {
        xmlInitParser();
        otherLoader = xmlGetExternalEntityLoader();
        xmlSetExternalEntityLoader(loadEntity);
    });
}

void rejectDeclaration(void* context, const xmlChar*, const xmlChar*, const xmlChar*)
{
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    static_cast<Complaints*>(parser->_private)
            ->add(parser->input ? parser->input->line : 0, Texts::tr("document type declarations are not accepted"));
    xmlStopParser(parser);
}

Document parse(const QByteArray& xml, Complaints& complaints)
{
    const Parser parser(xmlNewParserCtxt());
    parser->_private = &complaints;
    parser->sax->internalSubset = rejectDeclaration;
    return Document(xmlCtxtReadMemory(
            parser.get(), xml.constData(), xml.size(), nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_BIG_LINES));
}

class XmlSchemaChecker final : public SchemaChecker
{
public:
    XmlSchemaChecker() { installLoader(); }

    bool setSchemaFile(const QString& path) override;
    bool validate(const QByteArray& xml) override;
    QStringList errors() const override { return m_complaints.texts(); }

private:
    Complaints m_complaints;
    Schema m_schema;
};

bool XmlSchemaChecker::setSchemaFile(const QString& path)
{
    m_complaints.clear();
    m_schema.reset();
    const QFileInfo file(path);
    QFile readable(path);
    if (!file.isFile() || !readable.open(QIODevice::ReadOnly)) {
        m_complaints.add(0, Texts::tr("%1 cannot be read").arg(path));
        return false;
    }
    const QString canonical = file.canonicalFilePath();
    const QString folder = canonical.left(canonical.lastIndexOf(QLatin1Char('/')) + 1);
    const Session session(m_complaints, folder);
    // A URL, because names of other files are resolved against it.
    const QByteArray url = QUrl::toPercentEncoding(canonical, "/");
    const SchemaParser parser(xmlSchemaNewParserCtxt(url.constData()));
    xmlSchemaSetParserStructuredErrors(parser.get(), collect, &m_complaints);
    m_schema.reset(xmlSchemaParse(parser.get()));
    if (!m_complaints.isEmpty())
        m_schema.reset();
    else if (!m_schema)
        m_complaints.add(0, Texts::tr("%1 is not an XML schema").arg(path));
    return m_schema != nullptr;
}

bool XmlSchemaChecker::validate(const QByteArray& xml)
{
    m_complaints.clear();
    if (!m_schema) {
        m_complaints.add(0, Texts::tr("there is no schema to check against"));
        return false;
    }
    const Session session(m_complaints, {});
    const Document document = parse(xml, m_complaints);
    const bool isParsed = document && m_complaints.isEmpty();
    int result = -1;
    if (isParsed) {
        const SchemaCheck check(xmlSchemaNewValidCtxt(m_schema.get()));
        xmlSchemaSetValidStructuredErrors(check.get(), collect, &m_complaints);
        result = xmlSchemaValidateDoc(check.get(), document.get());
    }
    if (result != 0 && m_complaints.isEmpty())
        m_complaints.add(0, Texts::tr("the text cannot be read as XML"));
    return result == 0 && m_complaints.isEmpty();
}

} // namespace

extern "C" Q_DECL_EXPORT SchemaChecker* kivSchemaChecker()
{
    return new XmlSchemaChecker;
}
