#include "golden.h"
#include "randomdocument.h"

#include "writers/html/templatetohtmlwriter.h"
#include "writers/modern/markupwords_p.h"
#include "writers/modern/pagelanguage_p.h"
#include "writers/pages/reporttable.h"

#include <embedded/embeddedbackend.h>

#include <QXmlStreamReader>

#include <memory>

namespace {

QString pageOf(const ReportTemplate& report, const QVariantMap& attributes = {}, QList<ReportItem*>* items = nullptr)
{
    TemplateToHtmlWriter writer(report, items);
    writer.setAttribute("page", "modern");
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
        writer.setAttribute(it.key(), it.value());
    return writer.getHtml();
}

void readText(ReportTemplate& report, const QByteArray& json)
{
    static const QTemporaryDir folder;
    report.readFile(writeFile(folder.filePath("document.json"), QByteArray(json).replace('\'', '"')));
    QVERIFY2(!report.hasError(), qPrintable(report.errorString()));
}

/// A report with one table of these rows.
void readRows(ReportTemplate& report, int columns, const QByteArray& rows)
{
    readText(report, "{'node_type':'report','tag':'r','table_0':{'node_type':'table','tag':'t','title':'T','use_row_labels':true,"
                     "'num_columns':" + QByteArray::number(columns) + ',' + rows + "}}");
}

/// What a reader of the page, a browser or a program that reads aloud could not cope with.
class Judge
{
public:
    explicit Judge(const QString& page)
        : m_reader(page)
    {
        require(page.startsWith("<!DOCTYPE html>\n<html lang=\""), "the page does not say its language");
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement())
                judgeStart(m_reader.name().toString());
            else if (m_reader.isEndElement())
                judgeEnd(m_reader.name().toString());
            else if (m_reader.isCharacters() && !m_path.endsWith("style"))
                judgeText(m_reader.text().toString());
        }
        require(!m_reader.hasError(), m_reader.errorString());
        require(m_headings.count(1) == 1, "not one h1");
        for (const QString& name : qAsConst(m_references))
            require(m_ids.contains(name), "no element has the id " + name);
    }

    QStringList faults;

private:
    void require(bool isSo, const QString& fault)
    {
        if (!isSo)
            faults += QString("line %1: %2").arg(m_reader.lineNumber()).arg(fault);
    }

    QString value(const char* name) const { return m_reader.attributes().value(name).toString(); }

    void judgeStart(const QString& name)
    {
        static const QSet<QString> known {"html", "head", "meta", "title", "style", "body", "header", "main", "section", "div", "table",
                "caption", "thead", "tbody", "tr", "th", "td", "bdi", "span", "wbr", "img", "figure", "figcaption", "p", "h1", "h2",
                "h3", "h4", "h5", "h6"};
        static const QSet<QString> attributes {"lang", "dir", "charset", "http-equiv", "content", "name", "class", "alt", "src", "id",
                "role", "tabindex", "aria-labelledby", "aria-label", "scope", "colspan", "data-label", "width", "height"};
        m_path += name;
        require(known.contains(name), "an element from a text: " + name);
        for (const QXmlStreamAttribute& attribute : m_reader.attributes())
            require(attributes.contains(attribute.name().toString()), "an attribute from a text: " + attribute.name());
        if (name == "th")
            require(value("scope") == (m_path.contains("thead") ? "col" : "row"), "a th without its scope");
        if (name == "img")
            require(m_reader.attributes().hasAttribute("alt") && value("src").startsWith("data:image/"), "an img without alt or bytes");
        if (name == "p" || name.startsWith('h') || name == "figcaption")
            require(!QString("p h1 h2 h3 h4 h5 h6 figcaption").split(' ').contains(name) || value("dir") == "auto",
                    name + " takes no direction from its words");
        if (name.size() == 2 && name.at(0) == 'h' && name.at(1).isDigit()) {
            const int level = name.at(1).digitValue();
            require(m_headings.isEmpty() ? level == 1 : level <= m_headings.last() + 1, "a level of headings is left out");
            m_headings += level;
        }
        if (!value("id").isEmpty())
            require(!m_ids.contains(value("id")), "two elements have the id " + value("id"));
        m_ids += value("id");
        if (!value("aria-labelledby").isEmpty())
            m_references += value("aria-labelledby");
        if (name == "div")
            require(value("tabindex") == "0" && value("aria-labelledby") + value("aria-label") != "", "a frame without focus or name");
        judgeTable(name);
    }

    void judgeTable(const QString& name)
    {
        if (name == "table")
            m_width = -1;
        if (name == "tr")
            m_cells = 0;
        if (name == "td" || name == "th")
            m_cells += qMax(1, value("colspan").toInt());
    }

    void judgeEnd(const QString& name)
    {
        m_path.removeLast();
        m_letters = 0;
        if (name != "tr")
            return;
        require(m_width < 0 || m_cells == m_width, "a row of another width");
        m_width = m_cells;
    }

    void judgeText(const QString& text)
    {
        const bool isValue = m_path.contains("bdi") || m_path.last() == "span";
        require(isValue || text.trimmed().isEmpty() || !m_path.contains("table"), "a value that is not isolated: " + text);
        for (const QChar c : text) {
            m_letters = c.isSpace() || c.unicode() >= 0x590 ? 0 : m_letters + 1;
            require(m_letters < 22 || m_path.contains("title"), "a word that does not break: " + text);
        }
    }

    QXmlStreamReader m_reader;
    QStringList m_path;
    QVector<int> m_headings;
    QStringList m_ids;
    QStringList m_references;
    int m_width = -1;
    int m_cells = 0;
    int m_letters = 0;
};

QString faultsOf(const QString& page)
{
    return Judge(page).faults.join('\n');
}

QString words(const QString& text)
{
    QString page;
    uiutils::appendWords(page, text);
    return page;
}

} // namespace

class ModernPageTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

private Q_SLOTS:
    void init()
    {
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        QVERIFY(QDir(m_root.path()).mkpath("tmp"));
        writeFile(m_root.filePath("base/qml/common/images/fail_icon.png"), "fail");
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QCOMPARE(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}), QStringList());
    }
    void cleanup() { m_backend.reset(); }

    void documents()
    {
        const QVariantMap everything {{"includeJobInfo", true}, {"includeCustomerInfoTop", true}, {"includeTechnicianInfoEnd", true},
                {"fail", true}, {"logo", "data:image/png;base64,QUJD"}};
        for (const char* name : {"everything", "field", "tables", "hostile", "odd-keys", "twelve-rows", "eleven-tables", "empty"}) {
            ReportTemplate report;
            readDocument(report, name);
            const QString page = pageOf(report, everything);
            QVERIFY2(faultsOf(page).isEmpty(), qPrintable(name + (": " + faultsOf(page))));
            const QString said = outputOf("tidy", {"-q", "-e", "-utf8", "--show-warnings", "no"}, page.toUtf8());
            QVERIFY2(!said.contains("Error"), qPrintable(said));
        }
        for (quint32 seed = 0; seed < 100; ++seed) {
            ReportTemplate report;
            RandomDocument(seed).readInto(report);
            const QString faults = faultsOf(pageOf(report));
            QVERIFY2(faults.isEmpty(), qPrintable(QString("seed %1: %2").arg(seed).arg(faults)));
        }
    }

    /// Rows by their numbers; each cell as it must be written.
    void cells()
    {
        ReportTemplate report;
        readRows(report, 4, "'col_label_0':'Loss','col_label_1':'Remark','col_label_3':'R',"
            "'row_2':{'label':'B','cell_0':{'label':'3.10 dB','attr_status':'64'},'cell_1':{'label':'two\\r\\nlines <i>'},'cell_3':{'label':'x'}},"
            "'row_10':{'label':'','cell_0':{'label':'-1 dB','attr_status':'16','attr_align':'1'},'cell_1':{'label':'FAILED','attr_status':'64'}},"
            "'row_1':{'label':'A','cell_0':{'label':'9.00-10.00 s'},'cell_1':{'label':'EMPTY','attr_status':'32'}},"
            "'row_11':{'label':'C','cell_0':{'label':'7'}}");
        const QString page = pageOf(report);
        const QString expected = R"(<div class="scroll" role="group" tabindex="0" aria-labelledby="t2">
<table>
<caption id="t2"><bdi>T</bdi></caption>
<thead><tr><td></td><th scope="col" class="r"><bdi>Loss</bdi></th><th scope="col"><bdi>Remark</bdi></th><td></td><th scope="col"><bdi>R</bdi></th></tr></thead>
<tbody>
<tr><th scope="row" class="n"><bdi>A</bdi></th><td class="r n"><bdi>9.00-10.00 s</bdi></td><td class="marginal"><span class="verdict">Marginal</span></td><td colspan="2"></td></tr>
<tr><th scope="row" class="n"><bdi>B</bdi></th><td class="r n fail"><bdi>3.10 dB</bdi> <span class="verdict">Fail</span></td><td><bdi>two
lines &lt;i&gt;</bdi></td><td></td><td><bdi>x</bdi></td></tr>
<tr><td></td><td class="l n pass"><bdi>-1 dB</bdi> <span class="verdict">Pass</span></td><td class="fail"><span class="verdict">FAILED</span></td><td colspan="2"></td></tr>
<tr><th scope="row" class="n"><bdi>C</bdi></th><td class="r n"><bdi>7</bdi></td><td colspan="3"></td></tr>
</tbody>
</table>
</div>
)";
        QVERIFY2(page.contains(expected), qPrintable(page.mid(page.indexOf("<main"))));
        QVERIFY(page.contains(".fail .verdict::before { background-image: url(data:image/png;base64,ZmFpbA=="));
        QVERIFY(page.contains(".pass .verdict::before { display: none; }"));
    }

    /// Two columns never need a frame; nine lie on their side on paper; a row of thirteen becomes a list there.
    void widths()
    {
        const std::tuple<int, const char*, bool> rows[] {{1, "<table class=\"pair\">", false}, {2, "<div class=\"scroll\" ", false},
                {7, "<div class=\"scroll\" ", false}, {8, "<div class=\"scroll side\" ", false}, {11, "<div class=\"scroll side\" ", false},
                {12, "<table class=\"cards\">", true}};
        for (const auto& [columns, begin, isLabelled] : rows) {
            ReportTemplate report;
            readRows(report, columns, "'col_label_0':'\\u0022a\\u0022 <b>','row_1':{'label':'R','cell_0':{'label':'x'}}");
            const QString page = pageOf(report);
            QVERIFY2(page.contains(begin), qPrintable(QString::number(columns)));
            QCOMPARE(page.contains("<td data-label=\"&quot;a&quot; &lt;b&gt;\">"), isLabelled);
            QCOMPARE(faultsOf(page), QString());
        }
        // Few columns whose words would not fit beside each other.
        const std::pair<int, const char*> broad[] {{3, "<div class=\"scroll\" "}, {6, "<div class=\"scroll side\" "}, {9, "class=\"cards\""}};
        for (const auto& [columns, begin] : broad) {
            QByteArray labels;
            for (int i = 0; i < columns; ++i)
                labels += QByteArray("'col_label_%1':'serviceNameOfTheTerminal',").replace("%1", QByteArray::number(i));
            ReportTemplate report;
            readRows(report, columns, labels + "'row_1':{'label':'R','cell_0':{'label':'x'}}");
            QVERIFY2(pageOf(report).contains(begin), qPrintable(QString::number(columns)));
        }
    }

    void wordsOfTexts()
    {
        const QString w = "<wbr/>";
        const std::pair<QString, QString> rows[] {{"Attenuation & <loss>", "Attenuation &amp; &lt;loss&gt;"},
                {"eighteenCharacters", "eighteenCharacters"},
                {"/opt/measure/series-01_fiber.sor", "/opt/" + w + "measure/" + w + "series-01_" + w + "fiber.sor"},
                {"serviceNameOfTerminal", "service" + w + "Name" + w + "OfTerminal"},
                {QString(40, 'x'), QString(18, 'x') + w + QString(18, 'x') + w + "xxxx"}, {QString(21, 'x'), QString(21, 'x')},
                {"1,234,567,890.123456", "1,234,567,890.1234" "56"}, {QString(17, 'x') + "e\u0301" + "xxxx", QString(17, 'x') + "e\u0301" + w + "xxxx"},
                {QString(40, QChar(0x6771)), QString(40, QChar(0x6771))}, {"a\r\nb\rc\u2028d", "a\nb\nc\nd"}, {"a\u0001\"b", "a&quot;b"},
                {"\u05d0 -12.3 dB \u05d1", "\u05d0 <bdi dir=\"ltr\">-12.3 dB</bdi> \u05d1"},
                {"\u05d0 9.00-10.00 \u05d1", "\u05d0 <bdi dir=\"ltr\">9.00-10.00</bdi> \u05d1"}, {"-12.3 dB", "-12.3 dB"}};
        for (const auto& [text, expected] : rows)
            QCOMPARE(words(text), expected);
    }

    void languages()
    {
        const std::array<const char*, 5> rows[] {{"", "", "Loss", "en", "ltr"}, {"de_CH", "", "\u05d0", "de-CH", "ltr"},
                {"he", "", "Loss", "he", "rtl"}, {"he", "ltr", "", "he", "ltr"}, {"", "", "7 \u05d0 a", "en", "rtl"},
                {"\"><script>", "sideways", "a", "en", "ltr"}, {"", "rtl", "a", "en", "rtl"}};
        for (const auto& [tag, direction, title, shownTag, shownDirection] : rows) {
            const auto language = uiutils::pageLanguage(QString(tag), QString(direction), QString::fromUtf8(title));
            QCOMPARE(language.tag + ' ' + language.direction(), QString("%1 %2").arg(shownTag, shownDirection));
        }
        // The caller's choice before the document's, on both pages.
        ReportTemplate report;
        readText(report, "{'node_type':'report','tag':'r','title':'T','language':'fr','direction':'rtl'}");
        QVERIFY(pageOf(report).contains("<html lang=\"fr\" dir=\"rtl\">"));
        QVERIFY(pageOf(report, {{"language", "sv"}}).contains("<html lang=\"sv\" dir=\"rtl\">"));
        TemplateToHtmlWriter classic(report, nullptr);
        classic.setBodyAttributes(classic.defaultBodyAttributes());
        QVERIFY(classic.getHtml().contains("<body dir=\"rtl\" lang=\"fr\" style=\"print-color-adjust:exact; -webkit-print-color-adjust:exact\">"));
    }

    /// A section without a title or content; levels beyond HTML's.
    void headings()
    {
        QByteArray sections = "{'node_type':'section','tag':'s','title':'Deepest'}";
        for (const char* title : {"6", "5", "4", "", "2", "1"})
            sections = QByteArray("{'node_type':'section','tag':'s','title':'") + title + "','section_0':" + sections + '}';
        ReportTemplate report;
        readText(report, "{'node_type':'report','tag':'r','section_0':" + sections + ",'section_1':{'title':' '}}");
        const QString page = pageOf(report);
        QCOMPARE(faultsOf(page), QString());
        for (const char* heading : {"1>Report<", "2>1<", "3>2<", "4>4<", "5>5<", "6>6<", "6>Deepest<"})
            QVERIFY2(page.contains(QString("<h%1/h%2").arg(QString(heading).replace(">", " dir=\"auto\">"), QString(heading).left(1))), heading);
        QCOMPARE(page.count("<section>"), 8);
    }

    void plots()
    {
        ReportTemplate report;
        readText(report, "{'node_type':'report','tag':'r','table_3':{'node_type':'table','tag':'p','title':'Rates <1>','label':'plot',"
                         "'service':'plots','use_row_labels':true,'num_columns':0}}");
        const QString page = pageOf(report, {{"plot_width", 300}, {"plot_height", 200}});
        static const QRegularExpression image("<img alt=\"Rates &lt;1&gt;\\. Upload \\(Mbit/s\\): 1 to 100; Download \\(Mbit/s\\): 2 to 20\" "
                                              "width=\"300\" height=\"200\" src=\"data:image/png;base64,([^\"]*)\"/>");
        const auto match = image.match(page);
        QVERIFY(match.hasMatch());
        const QByteArray png = QByteArray::fromBase64(match.captured(1).toLatin1());
        QCOMPARE(QImage::fromData(png).size(), QSize(600, 400));
        QCOMPARE(contentsOf(m_root.filePath("tmp/rep_plot_3.png")), png);
    }

    /// Who prints after a page was made finds the same items, and the same page is returned again.
    void itemsOfAPass()
    {
        ReportTemplate report;
        readDocument(report, "eleven-tables");
        QList<ReportItem*> classic, modern;
        TemplateToHtmlWriter(report, &classic).getHtml();
        TemplateToHtmlWriter writer(report, &modern);
        writer.setAttribute("page", "modern");
        const QString page = writer.getHtml();
        QCOMPARE(writer.getHtml(), page);
        QVERIFY(page.contains("<!--report_status=unknown-->"));
        QVERIFY(classic.size() > 11);
        QCOMPARE(modern.size(), classic.size());
        qDeleteAll(classic + modern);
    }

    void switches()
    {
        const ReportTemplate report;
        QVERIFY(!pageOf(report).contains("<img"));
        QVERIFY(pageOf(report).contains("Solvant System Information"));
        QVERIFY(!pageOf(report, {{"showSoftwareRevs", false}, {"showHardwareRevs", false}}).contains("Solvant System Information"));
        QVERIFY(!pageOf(report).contains("@page { size: landscape; }"));
        QVERIFY(pageOf(report, {{"orientation", "landscape"}}).contains("@page { size: landscape; }"));
        QVERIFY(pageOf(report, {{"marginal", true}}).contains("<td class=\"marginal\"><span class=\"verdict\">Marginal</span></td>"));
    }
};

QTEST_MAIN(ModernPageTest)
#include "tst_modernpage.moc"
