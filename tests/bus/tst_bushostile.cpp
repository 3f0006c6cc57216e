#include "privatebus.h"
#include "bus/protocol_p.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivrejectedsettings.h>

#include <QRegularExpression>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <systemd/sd-bus.h>

#include <functional>

using namespace kiv::bus;

namespace {

constexpr char path[] = "/org/uiutils/kiv/fake";

/// Whatever calls itself a service and answers as the test likes.
class FakeService : public Stranger
{
public:
    FakeService()
    {
        connect(&connection, &Connection::callReceived, this, [this](const Message& call) { answer(call); });
        const Message name = daemonCall("RequestName");
        sd_bus_message_append(name.raw(), "su", "org.uiutils.kiv.fake", 0U);
        ask(name);
    }

    /// Tells the subscriber of changes; `append` writes into an array of (uyv).
    void tell(
            quint64 serial, const std::function<void(sd_bus_message*)>& append, const char* signature = "a(uyv)") const
    {
        const Message signal = connection.newSignal(client, path, serviceInterface, "ItemsChanged");
        sd_bus_message_append(signal.raw(), "tt", generation, serial);
        if (QByteArray(signature) == "a(uyv)") {
            sd_bus_message_open_container(signal.raw(), 'a', "(uyv)");
            append(signal.raw());
            sd_bus_message_close_container(signal.raw());
        } else {
            append(signal.raw());
        }
        const_cast<Connection&>(connection).send(signal);
    }
    /// Answers GetItems with the items from a position on; `next` 0 ends the list.
    void answerPage(const Message& call, quint32 next)
    {
        const Message reply = Connection::newReply(call);
        quint32 from = 0;
        sd_bus_message_rewind(call.raw(), 1);
        sd_bus_message_skip(call.raw(), "s");
        sd_bus_message_read(call.raw(), "u", &from);
        sd_bus_message_append(reply.raw(), "tt", generation, quint64(0));
        sd_bus_message_open_container(reply.raw(), 'a', "(usa{sv})");
        items(reply.raw(), from);
        sd_bus_message_close_container(reply.raw());
        sd_bus_message_append(reply.raw(), "u", next);
        connection.send(reply);
    }

    QByteArray version = "1.0";
    quint64 generation = 7;
    QByteArray client;
    int readings = 0;
    int acknowledgements = 0;
    std::function<void(sd_bus_message*, quint32 from)> items = [](sd_bus_message* message, quint32) {
        sd_bus_message_append(message, "(usa{sv})", 1, ":result:fake:one:", 2, "type", "s", "int", "value", "i", 1);
        sd_bus_message_append(message, "(usa{sv})", 2, ":result:fake:two:", 2, "type", "s", "int", "value", "i", 2);
    };
    std::function<void(const Message& call)> getItems = [this](const Message& call) { answerPage(call, 0); };
    /// What it answers to SendBatch; to SendAction it says no.
    std::function<void(sd_bus_message*)> batchAnswer;

private:
    void answer(const Message& call)
    {
        client = call.sender();
        const Message reply = Connection::newReply(call);
        if (call.member() == "GetItems") {
            ++readings;
            getItems(call);
        } else if (call.member() == "Acknowledge") {
            ++acknowledgements;
        } else if (call.member() == "GetAll") {
            sd_bus_message_append(reply.raw(), "a{sv}", version.isEmpty() ? 1 : 2, "Later", "(ib)", 1, 1, "Version",
                    "s", version.data());
            connection.send(reply);
        } else if (call.member() == "Subscribe") {
            sd_bus_message_append(reply.raw(), "t", generation);
            connection.send(reply);
        } else if (call.member() == "SendAction") {
            connection.reject(call, errorRejected, "No.");
        } else if (call.member() == "SendBatch") {
            batchAnswer(reply.raw());
            connection.send(reply);
        }
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(sd_bus_message*)>)

class BusHostileTest : public QObject
{
    Q_OBJECT

private:
    PrivateBus m_bus;
    std::unique_ptr<FakeService> m_fake;
    std::unique_ptr<BusBackend> m_backend;
    KIVClientInterface* m_client = nullptr;

    void connectClient()
    {
        m_backend = std::make_unique<BusBackend>();
        m_client = m_backend->serviceClient("fake", nullptr);
        QVERIFY(m_backend->waitForServices(patience));
    }
    QVariant value(const char* id) const
    {
        const KIVClientItem* item = m_client->getItem(id);
        return item ? item->getValue() : QVariant("no item");
    }
    QVariant one() const { return value(":result:fake:one:"); }
    QVariant two() const { return value(":result:fake:two:"); }

private Q_SLOTS:
    void init() { m_fake = std::make_unique<FakeService>(); }
    void cleanup()
    {
        m_backend.reset();
        m_fake.reset();
    }

    void versions()
    {
        for (const char* readable : {"1.0", "1.7", "1"}) {
            m_fake->version = readable;
            connectClient();
            QVERIFY(m_client->isValid());
            m_backend.reset();
        }
        for (const char* other : {"2.0", "0.9", "10.0", "x"}) {
            m_fake->version = other;
            const QRegularExpression words(QString("fake has version %1 of the interface").arg(other));
            QTest::ignoreMessage(QtWarningMsg, words);
            connectClient();
            QVERIFY(!m_client->isValid() && !m_client->getItem(":result:fake:one:"));
            QVERIFY(!m_client->setItem(":result:fake:one:", 1));
            QVERIFY2(m_client->getLastError().contains(words), qPrintable(m_client->getLastError()));
            // It has sent its items all the same.
            m_fake->tell(1, [](sd_bus_message* m) { sd_bus_message_append(m, "(uyv)", 1, 1, "i", 5); });
            QVERIFY(m_fake->isConnected() && !m_client->isValid());
            m_backend.reset();
        }
        m_fake->version = "";
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not say which version"));
        connectClient();
        QVERIFY(!m_client->isValid());
    }

    /// A service that is older has one reason for all, and one that answers nonsense has none.
    void batches_data()
    {
        using Answer = std::function<void(sd_bus_message*)>;
        QTest::addColumn<QByteArray>("version");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("reason");
        const Answer named = [](sd_bus_message* m) {
            sd_bus_message_append(m, "bsa{ss}", 0, "Not all.", 2, "one", "Too much.", "two", "Too little.");
        };
        QTest::newRow("older") << QByteArray("1.0") << named << "No." << "";
        QTest::newRow("now") << QByteArray("1.1") << named << "Not all." << "Too much.";
        QTest::newRow("later") << QByteArray("1.12") << named << "Not all." << "Too much.";
        QTest::newRow("accepted") << QByteArray("1.1")
                                  << Answer([](sd_bus_message* m) { sd_bus_message_append(m, "bsa{ss}", 1, "Done.", 0); }) << "" << "";
        QTest::newRow("nonsense") << QByteArray("1.1")
                                  << Answer([](sd_bus_message* m) { sd_bus_message_append(m, "ia{ss}", 0, 1, "one", "x"); })
                                  << "The service fake answered something that the interface does not know." << "";
    }
    void batches()
    {
        QFETCH(const QByteArray, version);
        QFETCH(const std::function<void(sd_bus_message*)>, answer);
        m_fake.reset();
        // A call waits for its answer, which therefore has to come from another thread.
        QSemaphore isThere;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            FakeService fake;
            fake.version = version;
            fake.batchAnswer = answer;
            isThere.release();
            QEventLoop().exec();
        }));
        thread->start();
        isThere.acquire();
        connectClient();
        QString reply;
        QTEST(m_client->sendAction(":action:fake:applyconfig:", "{}", &reply, patience) ? QString() : m_client->getLastError(),
                "error");
        QTEST(qobject_cast<KIVRejectedSettings*>(m_client)->rejectedSettings().value("one"), "reason");
        QCOMPARE(reply, QString(m_client->getLastError().isEmpty() ? "Done." : ""));
        // Other actions go the old way.
        QVERIFY(!m_client->sendAction(":action:fake:start:", "", nullptr, patience));
        QCOMPARE(m_client->getLastError(), QString("No."));
        m_backend.reset();
        thread->quit();
        thread->wait();
    }

    /// Items that could stand in no service file are left out; the others are there.
    void garbageItems()
    {
        m_fake->items = [](sd_bus_message* m, quint32) {
            sd_bus_message_append(m, "(usa{sv})", 1, ":result:fake:one:", 4, "type", "s", "int", "value", "i", 1,
                    "later", "(ii)", 1, 2, "quality", "i", 1000);
            sd_bus_message_append(m, "(usa{sv})", 2, "nonsense", 1, "type", "s", "int");
            sd_bus_message_append(m, "(usa{sv})", 3, ":result:fake:type:", 1, "type", "s", "quaternion");
            sd_bus_message_append(m, "(usa{sv})", 4, ":result:fake:untyped:", 0);
            sd_bus_message_append(m, "(usa{sv})", 5, ":result:fake:one:", 2, "type", "s", "bool", "value", "b", 1);
            sd_bus_message_append(
                    m, "(usa{sv})", 6, ":result:fake:long:", 2, "type", "s", "double", "precision", "i", 2000000000);
            sd_bus_message_append(m, "(usa{sv})", 7, ":result:fake:wrong:", 2, "type", "s", "int", "value", "s", "abc");
            sd_bus_message_append(m, "(usa{sv})", 8, ":result:fake:limits:", 3, "type", "s", "int", "minimum", "i", 5,
                    "maximum", "i", 1);
            sd_bus_message_append(m, "(usa{sv})", 9, ":result:fake:record:", 1, "type", "s", "aggregate");
            sd_bus_message_append(m, "(usa{sv})", 10, ":result:fake:choices:", 2, "type", "s", "int", "choices",
                    "a(issb)", 2, 1, "a", "", 1, 1, "b", "", 1);
            sd_bus_message_append(
                    m, "(usa{sv})", 11, ":result:fake:two:", 3, "type", "s", "int", "value", "i", 2, "label", "i", 3);
        };
        for (const char* id : {"nonsense", "type", "untyped", "long", "wrong", "limits", "record", "choices", "one"})
            QTest::ignoreMessage(QtWarningMsg,
                    QRegularExpression(QString("The item .*%1:? of the service fake is left out: .+").arg(id)));
        connectClient();
        QCOMPARE(m_client->getItemIds(), (QStringList {":result:fake:one:", ":result:fake:two:"}));
        QCOMPARE(two(), QVariant(2));
        QCOMPARE(int(m_client->getItem(":result:fake:one:")->getQualityCode()), 0);
        // The numbers are the service's own; those of what was left out mean nothing.
        m_fake->tell(1, [](sd_bus_message* m) {
            for (int number = 2; number < 11; ++number)
                sd_bus_message_append(m, "(uyv)", number, 1, "i", 50);
            sd_bus_message_append(m, "(uyv)", 11, 1, "i", 22);
        });
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(22), patience);
        QCOMPARE(one(), QVariant(1));
    }

    void garbageChanges()
    {
        connectClient();
        const KIVClientItem* item = m_client->getItem(":result:fake:one:");
        QSignalSpy changed(item, &KIVClientItem::valueChanged);
        for (int i = 0; i < 4; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("sent a value for :result:fake:one: that is"));
        m_fake->tell(1, [](sd_bus_message* m) {
            sd_bus_message_append(m, "(uyv)", 1, 1, "s", "abc");
            sd_bus_message_append(m, "(uyv)", 1, 1, "d", 1e300);
            sd_bus_message_append(m, "(uyv)", 1, 1, "a{sv}", 1, "a", "i", 1);
            sd_bus_message_append(m, "(uyv)", 1, 1, "as", 1, "5");
            sd_bus_message_append(m, "(uyv)", 1, 5, "i", 12345);
            sd_bus_message_append(m, "(uyv)", 1, 9, "a(issb)", 1, 1, "a", "", 1);
            sd_bus_message_append(m, "(uyv)", 1, 7, "s", "abc");
            sd_bus_message_append(m, "(uyv)", 1, 10, "i", 3);
            for (const int code : {0, 11, 64, 127, 139, 255})
                sd_bus_message_append(m, "(uyv)", 1, code, "i", 77);
            for (const quint32 number : {3U, 999U, 4294967295U})
                sd_bus_message_append(m, "(uyv)", number, 1, "i", 77);
            sd_bus_message_append(m, "(uyv)", 0, 77, "i", 77);
            sd_bus_message_append(m, "(uyv)", 2, 1, "i", 22);
        });
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(22), patience);
        QCOMPARE(one(), QVariant(1));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(int(item->getQualityCode()), 0);
        // A message of another form is none of ours.
        m_fake->tell(2, [](sd_bus_message* m) { sd_bus_message_append(m, "a(uys)", 1, 1, 1, "x"); }, "a(uys)");
        m_fake->tell(2, [](sd_bus_message* m) { sd_bus_message_append(m, "(uyv)", 1, 1, "i", 11); });
        QTRY_COMPARE_WITH_TIMEOUT(one(), QVariant(11), patience);
        QCOMPARE(m_fake->readings, 1);
    }

    /// Only the owner of the name speaks for the service.
    void anotherSender()
    {
        connectClient();
        Stranger stranger;
        const Message signal = stranger.connection.newSignal(m_fake->client, path, serviceInterface, "ItemsChanged");
        sd_bus_message_append(signal.raw(), "tta(uyv)", m_fake->generation, quint64(1), 1, 1, 1, "i", 66);
        stranger.connection.send(signal);
        QVERIFY(stranger.isConnected());
        m_fake->tell(1, [](sd_bus_message* m) { sd_bus_message_append(m, "(uyv)", 2, 1, "i", 22); });
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(22), patience);
        QCOMPARE(one(), QVariant(1));
    }

    /// A gap, or another generation: the items are read anew, and only what differs is told.
    void gaps()
    {
        connectClient();
        const QSignalSpy first(m_client->getItem(":result:fake:one:"), &KIVClientItem::valueChanged);
        const QSignalSpy second(m_client->getItem(":result:fake:two:"), &KIVClientItem::valueChanged);
        const QSignalSpy list(m_client, &KIVClientInterface::itemsChanged);
        const auto items = [this](int value) {
            m_fake->items = [value](sd_bus_message* m, quint32) {
                sd_bus_message_append(m, "(usa{sv})", 1, ":result:fake:one:", 2, "type", "s", "int", "value", "i", 1);
                sd_bus_message_append(
                        m, "(usa{sv})", 2, ":result:fake:two:", 2, "type", "s", "int", "value", "i", value);
            };
        };
        const auto nothing = [](sd_bus_message*) {};
        m_fake->tell(1, nothing);
        items(22);
        m_fake->tell(3, nothing);
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(22), patience);
        QCOMPARE(m_fake->readings, 2);
        // Errors count as changes do.
        for (int i = 0; i < 16; ++i) {
            const Message error = m_fake->connection.newSignal(m_fake->client, path, serviceInterface, "SigError");
            sd_bus_message_append(error.raw(), "s", "Too warm");
            m_fake->connection.send(error);
        }
        m_fake->tell(20, [](sd_bus_message* m) { sd_bus_message_append(m, "(uyv)", 2, 1, "i", 23); });
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(23), patience);
        QCOMPARE(m_fake->readings, 2);
        ++m_fake->generation;
        items(24);
        QTRY_COMPARE_WITH_TIMEOUT(m_fake->acknowledgements, 1, patience);
        m_fake->tell(21, nothing);
        QTRY_COMPARE_WITH_TIMEOUT(two(), QVariant(24), patience);
        QCOMPARE(m_fake->readings, 3);
        QCOMPARE(second.count(), 3);
        QCOMPARE(first.count(), 0);
        QCOMPARE(list.count(), 0);
    }

    /// The list changes while its pages are read: old pages belong to no list any more.
    void anotherGenerationBetweenPages()
    {
        // One item a page.
        m_fake->items = [this](sd_bus_message* m, quint32 from) {
            sd_bus_message_append(m, "(usa{sv})", from + 1, from == 0 ? ":result:fake:one:" : ":result:fake:two:", 2,
                    "type", "s", "int", "value", "i", int(m_fake->generation));
        };
        QVector<Message> calls;
        m_fake->getItems = [&](const Message& call) { calls += call; };
        m_backend = std::make_unique<BusBackend>();
        m_client = m_backend->serviceClient("fake", nullptr);
        const auto answerNext = [&](int count, quint32 next) {
            waitUntil([&] { return calls.size() >= count; });
            QCOMPARE(calls.size(), count);
            m_fake->answerPage(calls.last(), next);
        };
        answerNext(1, 1);
        waitUntil([&] { return calls.size() == 2; });
        // The list changes: the client is told, and asks anew while the old page is on its way.
        m_fake->tell(4, [](sd_bus_message*) {});
        waitUntil([&] { return calls.size() == 3; });
        m_fake->answerPage(calls.at(1), 0);
        QVERIFY(m_fake->isConnected());
        QVERIFY(!m_client->isValid());
        ++m_fake->generation;
        answerNext(3, 1);
        waitUntil([&] { return calls.size() == 4; });
        // It changes again, and nobody is told but by the page.
        ++m_fake->generation;
        m_fake->answerPage(calls.at(3), 0);
        answerNext(5, 1);
        answerNext(6, 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_client->isValid(), patience);
        QCOMPARE(one(), QVariant(9));
        QCOMPARE(two(), QVariant(9));
        // Changes that come while the items are read anew are in what was read, or on top of it.
        m_fake->tell(9, [](sd_bus_message*) {});
        answerNext(7, 1);
        waitUntil([&] { return calls.size() == 8; });
        m_fake->tell(10, [](sd_bus_message* m) {
            sd_bus_message_append(m, "(uyv)", 1, 1, "i", 100);
            sd_bus_message_append(m, "(uyv)", 2, 1, "i", 50);
        });
        answerNext(8, 0);
        QTRY_COMPARE_WITH_TIMEOUT(one(), QVariant(100), patience);
        QCOMPARE(two(), QVariant(9));
    }

    /// A list that never ends, turns back or has no order.
    void pagesThatLeadNowhere()
    {
        const auto page = [this](quint32 number, quint32 next) {
            m_fake->items = [number](sd_bus_message* m, quint32) {
                if (number > 0)
                    sd_bus_message_append(m, "(usa{sv})", number, ":result:fake:one:", 1, "type", "s", "int");
            };
            m_fake->getItems = [this, next](const Message& call) { m_fake->answerPage(call, next); };
        };
        for (const auto& [number, next] : {std::pair {1U, 1U}, {0U, 1U}, {2U, 0U}, {4294967295U, 0U}}) {
            page(number, next);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("The items of the service fake cannot be read: .+"));
            connectClient();
            QVERIFY(!m_client->isValid());
            m_backend.reset();
        }
        m_fake->getItems
                = [this](const Message& call) { m_fake->connection.reject(call, "org.example.Error", "Not today"); };
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read: Not today"));
        connectClient();
        QVERIFY(!m_client->setItem(":result:fake:one:", 1));
        QVERIFY(m_client->getLastError().contains("Not today"));
    }

    /// Items that cannot be read anew are not shown on as if they held.
    void readingAnewFails()
    {
        connectClient();
        m_fake->getItems
                = [this](const Message& call) { m_fake->connection.reject(call, "org.example.Error", "Not today"); };
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read: Not today"));
        m_fake->tell(5, [](sd_bus_message*) {});
        QTRY_VERIFY_WITH_TIMEOUT(!m_client->isValid(), patience);
        QVERIFY(!m_client->getItem(":result:fake:one:"));
    }
};

QTEST_GUILESS_MAIN(BusHostileTest)

#include "tst_bushostile.moc"
