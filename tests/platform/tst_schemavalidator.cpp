#include "columns.h"
#include "files.h"

#include <kiv/schemavalidator.h>

#include <QTcpServer>

#include <atomic>
#include <thread>
#include <unistd.h>

namespace {

const QByteArray head("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>");
const QByteArray linkElement("<xs:element name='link'><xs:complexType><xs:sequence>"
                             "<xs:element name='loss' type='xs:decimal' maxOccurs='unbounded'/>"
                             "</xs:sequence><xs:attribute name='unit'/></xs:complexType></xs:element>");
const QByteArray schema(head + linkElement + "</xs:schema>");

} // namespace

class SchemaValidatorTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString write(const QString& name, const QByteArray& contents) const { return writeFile(path(name), contents); }

private Q_SLOTS:
    void texts_data()
    {
        addColumns<QByteArray, QStringList>();
        const auto add = [](const char* name, const QByteArray& text, const QStringList& errors) {
            QTest::newRow(name) << text << errors;
        };
        const QString noDeclaration = ": document type declarations are not accepted";
        add("valid", "<?xml version='1.0'?>\n<link unit='dB'><loss>0.25</loss><loss>3</loss></link>", {});
        add("Latin", "<?xml version='1.0' encoding='ISO-8859-1'?><link unit='\xb5'><loss>1</loss></link>", {});
        add("value", "<link>\n<loss>much</loss>\n</link>", {"line 2: .*'much' is not a valid value.*"});
        add("two faults", "<link size='1'>\n<loss/>\n</link>", {"line 1: .*'size'.*", "line 2: .*"});
        add("element", "<link>\n\n<gain/></link>", {"line 3: .*gain.*not expected.*"});
        add("other root", "<ring/>", {"line 1: .*ring.*"});
        add("broken", "<link>\n<loss>1</los>\n</link>", {"line 2: .*mismatch.*"});
        add("unknown entity", "<link>\n<loss>&x;</loss></link>", {"line 2: .*x.*"});
        add("empty", "", {".+"});
        add("no UTF-8", "<link unit='\xff\xfe'/>", {"line 1: .*"});
        add("another file", "<!DOCTYPE link [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>\n<link unit='a'>&x;</link>",
                {"line 1" + noDeclaration});
        add("another definition", "<?xml version='1.0'?>\n<!DOCTYPE link SYSTEM 'link.dtd'><link/>",
                {"line 2" + noDeclaration});
        QByteArray laughs("<!DOCTYPE link [<!ENTITY a0 'ha'>");
        for (int i = 1; i < 40; ++i)
            laughs += QString("<!ENTITY a%1 '&a%2;&a%2;'>").arg(i).arg(i - 1).toLatin1();
        add("laughs", laughs + "]><link unit='&a39;'>&a39;</link>", {"line 1" + noDeclaration});
        const QByteArray hint(" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xsi:noNamespaceSchemaLocation='");
        add("a hint", "<link" + hint + "http://127.0.0.1:9/link.xsd'><loss>1</loss></link>", {});
        add("a hint at a schema that would do", "<ring" + hint + "ring.xsd'/>", {"line 1: .*ring.*"});
        add("nested", QByteArray("<link>").repeated(100'000), {".*256.*"});
    }
    void texts()
    {
        auto [text, errors] = currentRow<QByteArray, QStringList>();
        const QString ring = write("ring.xsd", head + "<xs:element name='ring'/></xs:schema>");
        text.replace("ring.xsd", QFile::encodeName(ring));
        SchemaValidator validator;
        QVERIFY2(validator.setSchemaFile(write("link.xsd", schema)), qPrintable(validator.errors().join('\n')));
        QCOMPARE(validator.validate(text), errors.isEmpty());
        const QStringList found = validator.errors();
        QVERIFY2(found.size() == errors.size(), qPrintable(found.join('\n')));
        for (int i = 0; i < errors.size(); ++i) {
            const QRegularExpression expected("\\A" + errors.at(i) + "\\z");
            QVERIFY2(expected.match(found.at(i)).hasMatch(), qPrintable(found.join('\n')));
        }
        QVERIFY(validator.validate("<link><loss>1</loss></link>"));
        QCOMPARE(validator.errors(), QStringList());
    }

    void schemas_data()
    {
        addColumns<QByteArray, QString>();
        const auto including = [](const QByteArray& file) {
            return head + "<xs:include schemaLocation='" + file + "'/></xs:schema>";
        };
        QTest::newRow("missing") << QByteArray() << "cannot be read";
        QTest::newRow("broken") << QByteArray("<xs:schema") << "main.xsd";
        QTest::newRow("no schema") << QByteArray("<link/>") << "not a schema";
        QTest::newRow("unknown type") << head + "\n<xs:element name='a' type='b'/></xs:schema>"
                                      << "line 2: ";
        QTest::newRow("beside it") << including("part.xsd") << "";
        QTest::newRow("below it") << including("sub/part%20two.xsd") << "";
        QTest::newRow("beside its folder") << including("../outside.xsd") << "not a file in the folder";
        QTest::newRow("by its path") << including("file:///etc/passwd") << "not a file in the folder";
        QTest::newRow("by a link") << including("link.xsd") << "not a file in the folder";
        QTest::newRow("a folder") << including("sub") << "not a file in the folder";
        QTest::newRow("from a network") << including("http://127.0.0.1:%1/part.xsd") << "not a file in the folder";
        QTest::newRow("an entity of another file")
                << QByteArray("<!DOCTYPE s [<!ENTITY e SYSTEM '../outside.xsd'>]>") + head + "&e;</xs:schema>"
                << "not a file in the folder";
    }
    /// In a folder whose name is not a URL without escapes.
    void schemas()
    {
        auto [text, error] = currentRow<QByteArray, QString>();
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        text.replace("%1", QByteArray::number(server.serverPort()));
        const QString folder = "Größe 100%25/";
        const QString outside = write("outside.xsd", schema);
        write(folder + "part.xsd", schema);
        write(folder + "sub/part two.xsd", schema);
        QFile::link(outside, path(folder + "link.xsd"));
        const QString main = text.isEmpty() ? path(folder + "none.xsd") : write(folder + "main.xsd", text);

        SchemaValidator validator;
        const bool isRead = validator.setSchemaFile(main);
        const QString found = validator.errors().join('\n');
        QVERIFY2(isRead == error.isEmpty() && found.isEmpty() == isRead && found.contains(error), qPrintable(found));
        QCOMPARE(validator.validate("<link><loss>1</loss></link>"), isRead);
        QVERIFY(isRead || validator.errors() == QStringList("there is no schema to check against"));
        QVERIFY(!server.waitForNewConnection(0));
    }

    void manyErrors()
    {
        SchemaValidator validator;
        QVERIFY(validator.setSchemaFile(write("link.xsd", schema)));
        QVERIFY(!validator.validate(
                "<link>" + QByteArray("<loss>x</loss>\n").repeated(70'000) + "<loss>1</loss></link>"));
        QCOMPARE(validator.errors().size(), 101);
        QVERIFY2(validator.errors().constLast().startsWith("and "), qPrintable(validator.errors().constLast()));
        QVERIFY(!validator.validate("<link>" + QByteArray("<loss>1</loss>\n").repeated(70'000) + "<loss>"
                + QByteArray(100'000, 'x') + "</loss></link>"));
        QVERIFY2(validator.errors().constFirst().startsWith("line 70001: "),
                qPrintable(validator.errors().constFirst()));
        QVERIFY(validator.errors().constFirst().size() < 600);
    }

    /// The errors of one thread stay in that thread.
    void threads()
    {
        const QString file = write("link.xsd", schema);
        std::atomic<int> wrong {0};
        const auto work = [&](const QByteArray& text, const QString& error) {
            for (int i = 0; i < 200; ++i) {
                SchemaValidator validator;
                const bool isRead = validator.setSchemaFile(file);
                if (!isRead || validator.validate(text) != error.isEmpty()
                        || !validator.errors().join(' ').contains(error))
                    ++wrong;
            }
        };
        std::thread other(work, "<link><loss>x</loss></link>", "'x'");
        work("<link><loss>1</loss></link>", "");
        other.join();
        QCOMPARE(wrong.load(), 0);
    }

    /// Nothing is printed to standard error.
    void silence()
    {
        QFile file(path("output"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const int kept = ::dup(STDERR_FILENO);
        ::dup2(file.handle(), STDERR_FILENO);
        SchemaValidator validator;
        const bool isAsExpected = !validator.setSchemaFile(write("broken.xsd", "<xs:schema"))
                && validator.setSchemaFile(write("link.xsd", schema)) && !validator.validate("<link><loss>x</los></link>")
                && !validator.validate("<link><loss>x</loss></link>");
        ::dup2(kept, STDERR_FILENO);
        ::close(kept);
        QVERIFY(isAsExpected);
        QCOMPARE(QFileInfo(path("output")).size(), qint64(0));
    }
};

QTEST_GUILESS_MAIN(SchemaValidatorTest)
#include "tst_schemavalidator.moc"
