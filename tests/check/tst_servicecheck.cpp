#include "columns.h"
#include "files.h"
#include "golden.h"

#include "check/services/jsontree.h"
#include "check/services/regexcheck.h"
#include "check/services/servicecheck.h"

#include <embedded/embeddedbackend.h>
#include <simulation/simulation_p.h>

using kiv::embedded::EmbeddedBackend;
using namespace uiutils::check;

namespace {

const QString wrongFiles = UIUTILS_TEST_DATA_DIR "/check/services";

QStringList linesOf(const QVector<Finding>& findings)
{
    QStringList lines;
    for (const Finding& finding : findings)
        lines += toLine(finding);
    return lines;
}

int errorsIn(const QVector<Finding>& findings)
{
    return int(std::count_if(findings.cbegin(), findings.cend(),
            [](const Finding& finding) { return finding.weight == Finding::Error; }));
}

QByteArray serviceWith(const QByteArray& items)
{
    return "{ \"service\": \"bench\", \"items\": [" + items + "] }";
}

} // namespace

/// What is told of wrong service files, in words for somebody who has never seen the schema.
class ServiceCheckTest : public QObject
{
    Q_OBJECT

private:
    /// The findings of a single file with these bytes.
    QVector<Finding> findingsIn(const QByteArray& text)
    {
        return checkServices({writeFile(m_folder.filePath("bench.service.json"), text)}, nullptr);
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void wrongFiles_data()
    {
        addColumns<QString>();
        for (const QString& name : namesIn(::wrongFiles)) {
            if (name.endsWith(".service.json") || QFileInfo(::wrongFiles + '/' + name).isDir())
                QTest::newRow(qPrintable(name)) << name;
        }
    }
    void wrongFiles()
    {
        const auto [name] = currentRow<QString>();
        // The goldens name the files as they were named here.
        QVERIFY(QDir::setCurrent(::wrongFiles));
        const QVector<Finding> findings = checkServices({name}, nullptr);
        const QString difference = goldenDifference(::wrongFiles + '/' + name.section('.', 0, 0) + ".txt",
                linesOf(findings).join('\n').toUtf8() + '\n');
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QVERIFY(!findings.isEmpty());
        for (const Finding& finding : findings) {
            QVERIFY2(!finding.message.contains("constraint") && !finding.message.contains("schema"), qPrintable(finding.message));
            QVERIFY2(finding.message.endsWith('.') || finding.message.endsWith('?'), qPrintable(finding.message));
        }
    }

    /// Every golden file belongs to a wrong file, and there are enough of both for the rules.
    void goldensAreUsed()
    {
        const QStringList goldens = QDir(::wrongFiles).entryList({"*.txt"});
        QVERIFY(goldens.size() >= 30);
        for (const QString& golden : goldens) {
            const QString name = ::wrongFiles + '/' + golden.section('.', 0, 0);
            QVERIFY2(QFileInfo::exists(name + ".service.json") || QFileInfo(name).isDir(), qPrintable(golden));
        }
    }

    /// What ships is what new users copy.
    void shippedFilesAreClean_data()
    {
        addColumns<QString>();
        for (const QString folder : {"platform/reference/services", "examples/page/services"})
            QTest::newRow(qPrintable(folder)) << UIUTILS_SOURCE_DIR "/" + folder;
    }
    void shippedFilesAreClean()
    {
        const auto [folder] = currentRow<QString>();
        QVector<uiutils::names::ItemFacts> facts;
        QCOMPARE(linesOf(checkServices({folder}, &facts)), QStringList());
        QVERIFY(!facts.isEmpty());
    }

    /// Pages are checked beside files that are wrong.
    void factsOfWrongFiles()
    {
        QVector<uiutils::names::ItemFacts> facts;
        const QVector<Finding> findings = checkServices({::wrongFiles + "/value-outside-limits.service.json"}, &facts);
        QVERIFY(errorsIn(findings) > 0);
        QCOMPARE(facts.size(), 4);
        QCOMPARE(facts.at(0).contextName(), QString("bench_cfg_range"));
    }

    /// Lines and columns count from 1, columns in characters, whatever the bytes before them.
    void places_data()
    {
        addColumns<QByteArray, int, int>();
        const QByteArray wrong = "{ \"service\": \"b\", \"items\": 5 }";
        QTest::newRow("plain") << wrong << 1 << 28;
        QTest::newRow("byte order mark") << "\xef\xbb\xbf" + wrong << 1 << 28;
        QTest::newRow("next line") << QByteArray("{ \"service\": \"b\",\n\"items\": 5 }") << 2 << 10;
        QTest::newRow("line ends of Windows") << QByteArray("{ \"service\": \"b\",\r\n\r\n\"items\": 5 }") << 3 << 10;
        QTest::newRow("two bytes a letter") << QByteArray("{ \"service\": \"\xc3\xa4\", \"items\": 5 }") << 1 << 28;
        QTest::newRow("two units a letter") << QByteArray("{ \"title\": \"\xf0\x9f\x98\x80\", \"service\": \"b\", \"items\": 5 }") << 1 << 43;
    }
    void places()
    {
        const auto [text, line, column] = currentRow<QByteArray, int, int>();
        const QVector<Finding> findings = findingsIn(text);
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.at(0).line, line);
        QCOMPARE(findings.at(0).column, column);
    }

    /// A finding below an item names it; what is beside the items names none.
    void itemsAreNamed()
    {
        const QVector<Finding> findings = findingsIn("{ \"service\": \"bench\", \"items\": [\n"
                                                     "{ \"id\": \":config:a:\", \"type\": \"bool\", \"x\": 1 },\n"
                                                     "{ \"id\": \":config:bench:b:\", \"type\": \"bool\", \"value\": [{ \"y\": [1] }] } ],\n"
                                                     "\"z\": 1 }");
        QCOMPARE(findings.size(), 3);
        QCOMPARE(findings.at(0).item, QString(":config:a:"));
        QCOMPARE(findings.at(1).item, QString(":config:bench:b:"));
        QCOMPARE(findings.at(2).item, QString());
    }

    void regularExpressions_data()
    {
        addColumns<QString, bool, bool>();
        for (const char* costly : {"(a+)+", "([a-z]*)*", "(\\d+)*", "(\\w+\\s?)*", "(a|a)*", "(.+)+", "([^,]+)+", "(x+x+)+y"})
            QTest::newRow(costly) << QString(costly) << true << true;
        for (const char* sound : {"", ".*", "[A-Za-z0-9]+", "\\d{1,3}(\\.\\d{1,3}){3}", "([a-z0-9-]+\\.)+[a-z]+",
                     "[0-9]+(,[0-9]+)*", "(a+b)+", "\\+?[0-9 ]*", "[^@]+@[^@]+\\.[a-z]+"})
            QTest::newRow(sound) << QString(sound) << true << false;
        for (const char* broken : {"[", "(", "*", "a{2,1}", "(?x)a # no end"})
            QTest::newRow(broken) << QString(broken) << false << false;
    }
    void regularExpressions()
    {
        const auto [pattern, isValid, isCostly] = currentRow<QString, bool, bool>();
        RegexCheck check;
        const RegexFacts& facts = check.facts(pattern);
        QCOMPARE(facts.problem.isEmpty(), isValid);
        QCOMPARE(facts.isCostly, isCostly);
    }

    /// Chains of any length, and circles of more than two, are followed without recursion.
    void longChains()
    {
        QByteArray items;
        constexpr int count = 3000;
        for (int i = 0; i < count; ++i)
            items += QString("%1{ \"id\": \":config:bench:i%2:\", \"type\": \"bool\", \"applicable\": \"cfg.i%3\" }")
                             .arg(i > 0 ? "," : "").arg(i).arg(i + 1).toUtf8();
        const QByteArray last = ", { \"id\": \":config:bench:i3000:\", \"type\": \"bool\" }";
        QCOMPARE(linesOf(findingsIn(serviceWith(items + last))), QStringList());
        const QByteArray closing = ", { \"id\": \":config:bench:i3000:\", \"type\": \"bool\", \"applicable\": \"cfg.i0\" }";
        const QVector<Finding> circle = findingsIn(serviceWith(items + closing));
        QCOMPARE(circle.size(), 1);
        QVERIFY(circle.at(0).message.contains("circle"));
    }

    /// What is wrong five thousand times is told a thousand times, and counted.
    void manyFindings()
    {
        QByteArray items;
        for (int i = 0; i < 5000; ++i)
            items += QByteArray(i > 0 ? "," : "") + "{ \"id\": \":config:bench:" + QByteArray::number(i) + ":\", \"type\": \"number\" }";
        const QVector<Finding> findings = findingsIn(serviceWith(items));
        QCOMPARE(findings.size(), 1001);
        QVERIFY(findings.at(0).message.startsWith("4000 more"));
        QCOMPARE(findings.at(0).weight, Finding::Error);
    }

    /// Every proposal compares with all names: of many wrong ones only the first get one.
    void manyProposals()
    {
        constexpr int count = 3000;
        QByteArray items;
        for (int i = 0; i < count; ++i)
            items += QString("%1{ \"id\": \":config:bench:item%2:\", \"type\": \"bool\", \"applicable\": \"cfg.itme%2\" }")
                             .arg(i > 0 ? "," : "").arg(i).toUtf8();
        const QVector<Finding> findings = findingsIn(serviceWith(items));
        const auto isProposed = [](const Finding& finding) { return finding.message.contains("Did you mean"); };
        const auto proposed = std::count_if(findings.cbegin(), findings.cend(), isProposed);
        QCOMPARE(findings.size(), 1001);
        QVERIFY2(proposed > 0 && proposed * count < 210000, qPrintable(QString::number(proposed)));
    }

    /// Whoever names files and items writes nothing else on the screen of a reader.
    void foreignText()
    {
        const QString line = toLine({Finding::Error, "a\n\x1b[2J.qml", 1, 2, "\u202e:x:", "No \x1b]0;x\x07 here…"});
        QCOMPARE(line, QString("a  [2J.qml:1:2: error: No  ]0;x  here… [ :x:]"));
    }

    /// What pages cannot see of a large file.
    void manyNames()
    {
        QByteArray items;
        for (int i = 0; i < 33000; ++i)
            items += QByteArray(i > 0 ? "," : "") + "{ \"id\": \":config:bench:i" + QByteArray::number(i) + ":\", \"type\": \"bool\" }";
        const QVector<Finding> findings = findingsIn(serviceWith(items));
        QCOMPARE(findings.size(), 1);
        QVERIFY(findings.at(0).message.contains("33000"));
        QCOMPARE(findings.at(0).weight, Finding::Warning);
    }

    void hostileFiles_data()
    {
        addColumns<QByteArray>();
        QTest::newRow("too large") << QByteArray(17 * 1024 * 1024, ' ');
        QTest::newRow("too many lists") << QByteArray(800000, '[');
        QTest::newRow("deep") << QByteArray(5000, '[') + QByteArray(5000, ']');
        QTest::newRow("deep objects") << QByteArray("{\"a\":").repeated(5000);
        QTest::newRow("zeros") << QByteArray(1000, '\0');
        QTest::newRow("half an escape") << QByteArray("{ \"a\": \"\\");
        QTest::newRow("lone surrogates") << QByteArray("{ \"service\": \"\\ud800\", \"items\": [], \"\\udfff\": 1 }");
        QTest::newRow("overlong bytes") << QByteArray("{ \"service\": \"\xc0\x80\", \"items\": [] }");
        QTest::newRow("no objects among the items") << QByteArray("{ \"service\": \"b\", \"items\": [1, null, \"a\", [], true] }");
    }
    void hostileFiles()
    {
        const auto [text] = currentRow<QByteArray>();
        const QVector<Finding> findings = findingsIn(text);
        QVERIFY(errorsIn(findings) > 0);
        for (const Finding& finding : findings)
            QVERIFY2(finding.message.size() < 1000, qPrintable(finding.message));
    }

    /// Qt's reader would only say that it has met a wrong character.
    void encodings_data()
    {
        addColumns<QByteArray, QByteArray>();
        QTest::newRow("too long for what it says") << QByteArray("\xc0\xaf") << QByteArray("0xc0");
        QTest::newRow("a surrogate") << QByteArray("\xed\xa0\x80") << QByteArray("0xed");
        QTest::newRow("beyond the last character") << QByteArray("\xf4\x90\x80\x80") << QByteArray("0xf4");
        QTest::newRow("cut") << QByteArray("\xe2\x82") << QByteArray("0xe2");
    }
    void encodings()
    {
        const auto [bytes, wrong] = currentRow<QByteArray, QByteArray>();
        const QVector<Finding> findings = findingsIn("{ \"title\": \"" + bytes + "\", \"service\": \"b\", \"items\": [] }");
        QCOMPARE(findings.size(), 1);
        QVERIFY2(findings.at(0).message.contains("UTF-8") && findings.at(0).message.contains(wrong), qPrintable(findings.at(0).message));
    }

    /// Ids of every script can be written, and what cannot be is told in one line.
    void namesOfAllScripts()
    {
        QByteArray items;
        for (const char* name : {"größe", "光学", "ضوء", "कखग", "длина", "δ"})
            items += QByteArray(items.isEmpty() ? "" : ",") + "{ \"id\": \":result:bench:" + name + ":\", \"type\": \"bool\" }";
        QCOMPARE(linesOf(findingsIn(serviceWith(items))), QStringList());
        const QVector<Finding> signs = findingsIn(serviceWith("{ \"id\": \":result:bench:\xe2\x82\xac\\n\xe2\x80\xae:\", \"type\": \"bool\" }"));
        QCOMPARE(signs.size(), 1);
        QVERIFY(!toLine(signs.at(0)).contains('\n'));
    }

    /// Files of one folder are found by their names; a folder that is none, and a file that is none, are told.
    void folders()
    {
        const QVector<Finding> missing = checkServices({m_folder.filePath("none.service.json")}, nullptr);
        QCOMPARE(errorsIn(missing), 1);
        QCOMPARE(missing.at(0).line, 0);
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("sub.service.json"));
        QCOMPARE(errorsIn(checkServices({folder.path()}, nullptr)), 1);
    }
};

QTEST_GUILESS_MAIN(ServiceCheckTest)
#include "tst_servicecheck.moc"
