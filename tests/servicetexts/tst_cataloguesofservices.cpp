#include "files.h"
#include "servicetexts/catalogueupdate.h"

#include "base/servicetext_p.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace uiutils::servicetexts;

namespace {

const QByteArray service = R"({ "service": "otdr", "items": [
    { "id": ":config:otdr:setup:mode:", "type": "int", "label": "Mode", "unit": "turns", "refuse": "The laser is locked.",
      "choices": [{ "value": 0, "name": "Low", "label": "Low power" }, { "value": 1, "name": "High" }, { "value": 2, "name": "N2", "label": "1310" }] },
    { "id": ":result:otdr:mode:", "type": "int", "label": "Mode", "attributes": { "formatter": "si:rev" } },
    { "id": ":result:otdr:rate:", "type": "double", "label": "Rate", "unit": "%", "attributes": { "formatter": "bitrate" } },
    { "id": ":action:otdr:start:", "type": "action", "label": "Start", "does": { "fail": "There is no light.", "reply": "Started." } } ],
  "happens": [{ "after": 1, "error": "The fan stands still." }, { "after": 2, "refuse": "Busy." }] })";

/// A message of a catalogue: "TEXT [COMMENT] = TRANSLATION (TYPE)".
QStringList messagesOf(const QString& catalogue)
{
    QXmlStreamReader xml(contentsOf(catalogue));
    QStringList messages;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == "source") {
            messages += xml.readElementText();
        } else if (xml.name() == "comment") {
            messages.last() += " [" + xml.readElementText() + ']';
        } else if (xml.name() == "translation") {
            const QString type = xml.attributes().value("type").toString();
            messages.last() += " = " + xml.readElementText() + (type.isEmpty() ? QString() : " (" + type + ')');
        }
    }
    messages.sort();
    return messages;
}

} // namespace

class CataloguesOfServicesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString& name) const { return m_folder->filePath(name); }
    ServiceTexts texts(const QByteArray& json, QStringList* problems = nullptr)
    {
        QStringList ignored;
        return textsOf({writeFile(path("a.service.json"), json)}, problems ? problems : &ignored);
    }
    QStringList updated(const QString& catalogue, const ServiceTexts& now)
    {
        QStringList problems;
        const QStringList summaries = updateCatalogues({catalogue}, now, &problems);
        return problems.isEmpty() && summaries.size() == 1 ? messagesOf(catalogue) : problems;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    /// Everything that the client's side looks up, and nothing of what it does not: a reply, numbers, signs.
    void whatServicesSay()
    {
        const ServiceTexts said = texts(service);
        QCOMPARE(QStringList(said.keys()).join('|'),
                "Busy.|High|Low power|Mode|Rate|Start|The fan stands still.|The laser is locked.|There is no light.|bit/s|rev|turns");
        QCOMPARE(said.value("Mode").ids, QStringList({":config:otdr:setup:mode:", ":result:otdr:mode:"}));
        QCOMPARE(said.value("Mode").places.join(", "), "Label of :config:otdr:setup:mode:, Label of :result:otdr:mode:");
        QCOMPARE(said.value("High").places.join(", "), "Choice of :config:otdr:setup:mode:");
        QCOMPARE(said.value("Busy.").places.join(", "), "Error of the service otdr");
    }

    /// The life of a catalogue, as a translator sees it.
    void translationsStay()
    {
        const QString file = path("otdr_de.ts");
        QCOMPARE(updated(file, texts(service)).size(), 12);
        QVERIFY2(contentsOf(file).contains("language=\"de"), contentsOf(file).constData());
        QVERIFY2(contentsOf(file).contains("<extracomment>Label of :config:otdr:setup:mode:; Label of :result:otdr:mode:</extracomment>"),
                contentsOf(file).constData());
        // The translator works: one text for all, one for an item alone, and one for an item that does not say it.
        QByteArray work = contentsOf(file);
        const QByteArray mode = "<source>Mode</source>";
        const QByteArray open = "<translation type=\"unfinished\"></translation>";
        const int place = work.lastIndexOf("<message>", work.indexOf(mode));
        const auto message = [](const QByteArray& id, const QByteArray& word) {
            return "<message><source>Mode</source><comment>" + id + "</comment><translation>" + word + "</translation></message>";
        };
        work.replace(work.indexOf(open, place), open.size(), "<translation>Betriebsart</translation>");
        work.insert(place, message(":result:otdr:mode:", "Messart") + message(":result:otdr:rate:", "Falsch"));
        writeFile(file, work);
        // A text is gone, and one is new.
        QByteArray changed = service;
        changed.replace("Start\"", "Go\"");
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        const QStringList messages = updated(file, texts(changed));
        QVERIFY2(messages.contains("Mode = Betriebsart") && messages.contains("Mode [:result:otdr:mode:] = Messart")
                        && messages.contains("Mode [:result:otdr:rate:] = Falsch (vanished)") && messages.contains("Go =  (unfinished)")
                        && !messages.join('|').contains("Start"),
                qPrintable(messages.join('\n')));
        QVERIFY(!QFile::permissions(file).testFlag(QFile::ReadOther));
        // What had been translated comes back with its translation.
        changed.replace("\"Mode\"", "\"Kind\"");
        QVERIFY(updated(file, texts(changed)).contains("Mode = Betriebsart (vanished)"));
        QVERIFY(updated(file, texts(service)).contains("Mode = Betriebsart"));
    }

    /// Whatever a text holds is found at run time under the text that the service says.
    void textsOfEveryKind()
    {
        const QStringList nasty {"a \"quoted\" one", "C:\\new\\table", "two\nlines", "a */ b /* c // d", u8"µm", u8"光功率", u8"قدرة", u8"😀 mood",
                "%1 %n percent%", "<b>bold</b> & co", " a blank before", "R\"(raw)\"", "ends in \\", QString("What??") + "/", "QT_TRANSLATE_NOOP(\"X\", \"y\")", QString(5000, 'x')};
        QJsonArray items;
        for (const QString& text : nasty)
            items += QJsonObject {{"id", u8":result:otdr:größe\\" + QString::number(items.size()) + u8"大\\"}, {"type", "int"}, {"label", text}};
        const QString file = path("otdr_de.ts");
        const QStringList messages = updated(file, texts(QJsonDocument(QJsonObject {{"items", items}}).toJson()));
        QCOMPARE(messages.size(), nasty.size());
        QByteArray done = contentsOf(file);
        done.replace("<translation type=\"unfinished\"></translation>", "<translation>found</translation>");
        writeFile(file, done);
        QVERIFY(!outputOf(UIUTILS_LRELEASE, {file, "-qm", path("a.qm")}).startsWith("status"));
        QTranslator translator;
        QVERIFY(translator.load(path("a.qm")));
        for (const QString& text : nasty)
            QVERIFY2(translator.translate(uiutils::serviceContext, text.toUtf8().constData()) == "found", qPrintable(text));
    }

    /// Files that are not what they were taken for. None is changed.
    void wrongFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("problem");
        const QByteArray ts = "<TS version='2.1'><context><name>%</name><message><source>a</source><translation>b</translation></message></context></TS>";
        QTest::newRow("of pages") << "pages_de.ts" << QByteArray(ts).replace("%", "HomePage") << "has messages of \"HomePage\"";
        QTest::newRow("half") << "half_de.ts" << QByteArray(ts).replace("%", "ServiceItem").left(90) << "the catalogue cannot be read and stays as it is";
        QTest::newRow("another encoding") << "latin_de.ts" << QByteArray(ts).replace("%", "ServiceItem").replace(">b<", ">\xfc<") << "cannot be read and stays";
        QTest::newRow("another form") << "other_de.ts" << QByteArray("<html/>") << "is no catalogue of translators";
        QTest::newRow("no language") << "mine.ts" << QByteArray() << "does not say its language";
        QTest::newRow("another ending") << "mine_de.json" << QByteArray() << "does not say its language";
        QTest::newRow("no folder") << "file/mine_de.ts" << QByteArray() << "file/mine_de.ts";
    }
    void wrongFiles()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, contents);
        QFETCH(const QString, problem);
        writeFile(path("file"), "");
        if (!contents.isEmpty())
            writeFile(path(name), contents);
        QStringList problems;
        const QStringList summaries = updateCatalogues({path(name), path("good_de.ts")}, texts(service), &problems);
        QVERIFY2(problems.size() == 1 && problems.at(0).contains(problem) && problems.at(0).contains(name), qPrintable(problems.join('\n')));
        QVERIFY2(summaries.size() == 1 && summaries.at(0).contains("good_de.ts: Found 12 source text(s)"), qPrintable(summaries.join('\n')));
        QCOMPARE(contentsOf(path(name)), contents);
        QCOMPARE(QFileInfo::exists(path(name)), !contents.isEmpty());
    }

    /// One service file that cannot be read, and all that it says would be marked as vanished.
    void theProgram()
    {
        const auto run = [](const QStringList& arguments) { return outputOf(UIUTILS_DESCRIBE_PROGRAM, arguments); };
        writeFile(path("services/a.service.json"), service);
        const QStringList wanted {"--services", path("services"), "--ts", path("a_de.ts"), path("a_ja.ts")};
        const QString made = run(wanted);
        QVERIFY2(made.startsWith(path("a_de.ts") + ": Found 12 source text(s) (12 new and 0 already existing)\n" + path("a_ja.ts")), qPrintable(made));
        QVERIFY(contentsOf(path("a_ja.ts")).contains("language=\"ja"));
        // As the first command of the guide does, beside services that were never translated.
        const QString first = path("services/translations/a_de.ts");
        const QString begun = run({"--services", path("services"), "--ts", first});
        QVERIFY2(begun.startsWith(first + ": Found 12") && QFileInfo::exists(first), qPrintable(begun));
        const QByteArray before = contentsOf(path("a_de.ts"));
        writeFile(path("services/b.service.json"), "{");
        const QString refused = run(wanted);
        QVERIFY2(refused.startsWith("status 1\nuiutils-describe: " + path("services/b.service.json") + " is no service file: "), qPrintable(refused));
        QCOMPARE(contentsOf(path("a_de.ts")), before);
        for (const QStringList& misuse : {QStringList {"--ts"}, wanted + QStringList {"--output", path("x")}, wanted + QStringList {"--bus"}})
            QVERIFY2(run(misuse).startsWith("status 2"), qPrintable(run(misuse)));
        QVERIFY(QDir().mkdir(path("empty")));
        QVERIFY(run({"--services", path("empty"), "--ts", path("a_de.ts")}).contains("There is no service file in " + path("empty")));
        QVERIFY(run({"--services", path("none"), "--ts", path("a_de.ts")}).contains(path("none") + " cannot be read: No such file"));
        QCOMPARE(contentsOf(path("a_de.ts")), before);
    }

    /// What is wrong in a service file is for others to tell; its other texts count.
    void wrongServices()
    {
        QStringList problems;
        QCOMPARE(texts(R"({ "items": [ 7, { "label": ["x"], "choices": 3 }, { "label": "Good" } ], "happens": {} })", &problems).keys(), QStringList("Good"));
        QCOMPARE(problems, QStringList());
        for (const QByteArray& json : {QByteArray("{ \"items\": ["), QByteArray("[]"), QByteArray("\xff\xfe{\0}\0", 6)})
            QVERIFY(texts(json, &problems).isEmpty());
        QCOMPARE(problems.size(), 3);
        QVERIFY(textsOf({path("none.service.json")}, &problems).isEmpty());
        QVERIFY2(problems.at(3).contains("none.service.json cannot be read"), qPrintable(problems.at(3)));
        writeFile(path("b.service.json"), service);
        writeFile(path("notes.json"), service);
        QCOMPARE(serviceFilesIn({m_folder->path()}).size(), 2);
        QCOMPARE(serviceFilesIn({path("notes.json")}), QStringList(path("notes.json")));
    }
};

QTEST_GUILESS_MAIN(CataloguesOfServicesTest)
#include "tst_cataloguesofservices.moc"
