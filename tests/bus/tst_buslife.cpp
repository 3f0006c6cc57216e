#include "files.h"
#include "privatebus.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QUrl>

#include <unistd.h>

using namespace kiv::bus;

namespace {

const QString levelId = ":config:life:level:";
const QString steadyId = ":config:life:steady:";

} // namespace

/// Processes that end, stop and return.
class BusLifeTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<Child> m_kivd;
    std::unique_ptr<BusBackend> m_backend;
    KIVClientInterface* m_client = nullptr;
    pid_t m_bridge = 0;

    std::unique_ptr<Child> startKivd(const QString& services = "services", const QStringList& options = {})
    {
        auto kivd = std::make_unique<Child>();
        kivd->run(QCoreApplication::applicationDirPath() + "/kivd",
                QStringList {"--services", m_root->filePath(services), "--root", m_root->filePath("root")} + options);
        return kivd;
    }
    void writeServices(const QString& folder, int level)
    {
        const QString text = QString(R"({ "service": "life", "items": [
            { "id": "%1", "type": "int", "value": %3 }, { "id": "%2", "type": "std::string", "value": "as ever" },
            { "id": ":action:life:first:", "type": "action", "does": { "reply": "first" } },
            { "id": ":action:life:second:", "type": "action", "does": { "reply": "second" } } ] })")
                                     .arg(levelId, steadyId)
                                     .arg(level);
        writeFile(m_root->filePath(folder + "/life.service.json"), text.toUtf8());
    }
    bool isThere() const
    {
        return QTest::qWaitFor([this] { return m_client->isValid(); }, patience);
    }
    bool isGone() const
    {
        return QTest::qWaitFor([this] { return !m_client->isValid(); }, patience);
    }
    QVariant level() const { return m_client->getItem(levelId) ? m_client->getItem(levelId)->getValue() : QVariant(); }
    /// Reaches the bus through a program that forwards to it. It is stopped when the connection is made, and blocks
    /// nobody.
    void connectOverStoppedBridge()
    {
        m_backend.reset();
        const QString script = QString("echo $$ >%1/bridge; kill -STOP $$; exec systemd-stdio-bridge --bus-path=%2")
                                       .arg(m_bus->folder.path(), m_bus->address());
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unixexec:path=/bin/sh,argv1=-c,argv2=" + QUrl::toPercentEncoding(script));
        m_backend = std::make_unique<BusBackend>();
        m_client = m_backend->serviceClient("life", nullptr);
        waitUntil([this] {
            m_bridge = contentsOf(m_bus->folder.filePath("bridge")).toInt();
            return m_bridge > 0 && contentsOf(QString("/proc/%1/stat").arg(m_bridge)).contains(") T ");
        });
        QVERIFY(!m_backend->waitForServices(100) && !m_client->setItem(levelId, 9));
        ::kill(m_bridge, SIGCONT);
        QVERIFY(isThere());
    }
    std::unique_ptr<Child> startClient() const
    {
        auto client = std::make_unique<Child>();
        client->run(QCoreApplication::applicationDirPath() + "/buspeer", {"client", "life"});
        return client;
    }

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_unique<PrivateBus>();
        m_root = std::make_unique<QTemporaryDir>();
        writeServices("services", 5);
        m_kivd = startKivd();
        m_backend = std::make_unique<BusBackend>();
        m_client = m_backend->serviceClient("life", nullptr);
        QVERIFY(isThere());
    }
    void cleanup()
    {
        m_backend.reset();
        m_kivd.reset();
        m_bus.reset();
    }

    /// The service or the bus dies at any moment under load; the pages keep what they had and find it again.
    void killed()
    {
        const int kills = qMax(30, qEnvironmentVariableIntValue("UIUTILS_KILLS"));
        Manifest manifest(m_client, "", "life");
        KivData* shown = Manifest::getKivData(levelId);
        KivData* steady = Manifest::getKivData(steadyId);
        QSignalSpy levels(shown, &KivData::valueChanged);
        // A wrapper tells of everything when its item returns; what it tells is what it had.
        QSet<QString> steadyValues;
        connect(steady, &KivData::valueChanged, this, [&] { steadyValues += steady->getValue().toString(); });
        std::unique_ptr<Child> other = startClient();
        QCOMPARE(other->ask("hammer " + levelId.toUtf8()), QByteArray("hammering"));
        QRandomGenerator random(20240229);
        for (int i = 0; i < kills; ++i) {
            const int heard = levels.count() + random.bounded(12);
            QTRY_VERIFY_WITH_TIMEOUT(levels.count() >= heard, patience);
            if (random.bounded(2) == 0)
                m_client->setItem(levelId, random.bounded(1000));
            const bool isBus = i % 10 == 9;
            (isBus ? m_bus->daemon : *m_kivd).end();
            QVERIFY(isGone());
            QVERIFY(!shown->isReady() && shown->getValue().isValid());
            QCOMPARE(steady->getValue(), QVariant("as ever"));
            QVERIFY(!m_client->setItem(levelId, 1) && !m_client->getLastError().isEmpty());
            if (isBus)
                m_bus->start();
            else
                m_kivd = startKivd();
            QVERIFY2(isThere(), qPrintable(QString::number(i)));
            QVERIFY(shown->isReady());
        }
        QCOMPARE(other->ask("rest"), QByteArray("resting"));
        QTRY_VERIFY_WITH_TIMEOUT(m_client->setItem(levelId, 4711), patience);
        QTRY_COMPARE_WITH_TIMEOUT(shown->getValue(), QVariant(4711), patience);
        QTRY_COMPARE_WITH_TIMEOUT(other->ask("value " + levelId.toUtf8()), QByteArray("4711"), patience);
        QCOMPARE(startClient()->ask("value " + levelId.toUtf8()), QByteArray("4711"));
        QCOMPARE(steadyValues - QSet<QString> {"as ever"}, QSet<QString>());
    }

    void twoWriters()
    {
        const std::unique_ptr<Child> other = startClient();
        const QByteArray id = levelId.toUtf8();
        const QSignalSpy heard(m_client->getItem(levelId), &KIVClientItem::valueChanged);
        for (int i = 0; i < 40; i += 2) {
            QVERIFY(m_client->setItem(levelId, 100 + i));
            QTRY_COMPARE_WITH_TIMEOUT(other->ask("value " + id), QByteArray::number(100 + i), patience);
            QCOMPARE(other->ask("set " + id + ' ' + QByteArray::number(101 + i)), QByteArray("done"));
            QTRY_COMPARE_WITH_TIMEOUT(level(), QVariant(101 + i), patience);
        }
        QCOMPARE(heard.count(), 40);
        other->ask("hammer " + id);
        for (int i = 0; i < 300; ++i)
            QVERIFY2(m_client->setItem(levelId, 2000 + i), qPrintable(m_client->getLastError()));
        other->ask("rest");
        // What does not arrive as it was is not sent at all.
        QVERIFY(!m_client->setItem(steadyId, QString::fromLatin1("a\0b", 3)));
        // Ordered behind everything that was written before.
        QVERIFY(m_client->setItem(steadyId, "x"));
        QTRY_COMPARE_WITH_TIMEOUT(m_client->getItem(steadyId)->getValue(), QVariant("x"), patience);
        QTRY_COMPARE_WITH_TIMEOUT(other->ask("value " + steadyId.toUtf8()), QByteArray("x"), patience);
        QCOMPARE(other->ask("value " + id), level().toByteArray());
    }

    void diesDuringACall()
    {
        Child peer;
        peer.run(QCoreApplication::applicationDirPath() + "/buspeer", {"service", "mortal", "1"});
        m_client = m_backend->serviceClient("mortal", nullptr);
        QVERIFY(isThere());
        QVERIFY(!m_client->sendAction(":action:numbers:die:", QString(), nullptr, patience));
        QVERIFY2(m_client->getLastError().contains("mortal ended before it answered"),
                qPrintable(m_client->getLastError()));
        QVERIFY(isGone());
    }

    /// Who has the name on this user's bus is not believed if it is another user.
    void serviceOfAnotherUser()
    {
        if (::geteuid() != 0)
            QSKIP("Only root can be another user.");
        m_backend.reset();
        // The user of a connection is the one who opens it.
        if (::seteuid(65534) != 0)
            QSKIP("There is no other user in this name space.");
        m_backend = std::make_unique<BusBackend>();
        QCOMPARE(::seteuid(0), 0);
        m_client = m_backend->serviceClient("life", nullptr);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("life is run by another user"));
        QVERIFY(m_backend->waitForServices(patience));
        QVERIFY(!m_client->isValid() && !m_client->setItem(levelId, 9));
        QVERIFY2(m_client->getLastError().contains("another user"), qPrintable(m_client->getLastError()));
    }

    /// Whoever is stopped: the caller waits for as long as it asked, and then not at all until somebody answers.
    void stopped_data()
    {
        QTest::addColumn<QString>("who");
        for (const char* who : {"service", "bus", "bridge"})
            QTest::newRow(who) << who;
    }
    void stopped()
    {
        QFETCH(QString, who);
        if (who == "bridge" && QStandardPaths::findExecutable("systemd-stdio-bridge").isEmpty())
            QSKIP("There is no systemd-stdio-bridge.");
        if (who == "bridge")
            connectOverStoppedBridge();
        const pid_t stopped = who == "service" ? m_kivd->processId()
                : who == "bus"                 ? m_bus->daemon.processId()
                                               : m_bridge;
        // Without a process, the signal would stop everything that runs the tests.
        QVERIFY(stopped > 0);
        ::kill(stopped, SIGSTOP);
        QElapsedTimer timer;
        timer.start();
        QString reply = "untouched";
        QVERIFY(!m_client->sendAction(":action:life:first:", QString(), &reply, 200));
        const qint64 waited = timer.restart();
        QVERIFY2(m_client->getLastError().contains("did not answer within 200 ms"),
                qPrintable(m_client->getLastError()));
        qInfo("A call of 200 ms came back after %lld ms.", waited);
        QVERIFY(waited >= 200 && waited < 200 * 20);
        QVERIFY(!m_client->setItem(levelId, 9));
        QVERIFY2(m_client->getLastError().contains("has not answered an earlier request"),
                qPrintable(m_client->getLastError()));
        QVERIFY(timer.elapsed() < 200 * 20);
        // What was said last is still there to read.
        QCOMPARE(level(), QVariant(5));
        ::kill(stopped, SIGCONT);
        QTRY_VERIFY_WITH_TIMEOUT(m_client->sendAction(":action:life:second:", QString(), &reply, patience), patience);
        // The first one's answer has come meanwhile.
        QCOMPARE(reply, QString("second"));
        QVERIFY(m_client->setItem(levelId, 6));
        QTRY_COMPARE_WITH_TIMEOUT(level(), QVariant(6), patience);
    }

    void busThatIsStoppedFromTheBeginning()
    {
        m_backend.reset();
        m_bus->daemon.send(SIGSTOP);
        m_backend = std::make_unique<BusBackend>();
        m_client = m_backend->serviceClient("life", nullptr);
        QVERIFY(!m_backend->waitForServices(100));
        QVERIFY(!m_client->setItem(levelId, 9) && !m_client->getLastError().isEmpty());
        m_bus->daemon.send(SIGCONT);
        QVERIFY(isThere());
    }

    /// Who has the name first has it; the next one takes over.
    void nameTakenByAnother()
    {
        writeServices("others", 77);
        std::unique_ptr<Child> second = startKivd("others");
        Stranger stranger;
        const auto waiting = [&] {
            const Message call = stranger.daemonCall("ListQueuedOwners");
            Writer(call).text("org.uiutils.kiv.life");
            Reader reader(stranger.ask(call));
            int count = 0;
            for (reader.enter('a', "s"); !reader.atEnd(); reader.text())
                ++count;
            return count;
        };
        QTRY_COMPARE_WITH_TIMEOUT(waiting(), 2, patience);
        QCOMPARE(level(), QVariant(5));
        m_kivd->end();
        QTRY_COMPARE_WITH_TIMEOUT(level(), QVariant(77), patience);
        QVERIFY(m_client->setItem(levelId, 78));
        m_kivd = startKivd();
        QTRY_COMPARE_WITH_TIMEOUT(waiting(), 2, patience);
        QTRY_COMPARE_WITH_TIMEOUT(level(), QVariant(78), patience);
        second->end(SIGTERM);
        QTRY_COMPARE_WITH_TIMEOUT(level(), QVariant(78), patience);
    }

    void termination()
    {
        QVERIFY(m_client->setItem(levelId, 6));
        m_kivd->end(SIGTERM);
        QCOMPARE(m_kivd->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_kivd->exitCode(), 0);
        QVERIFY(isGone());
        m_kivd = startKivd();
        QVERIFY(isThere());
        QCOMPARE(level(), QVariant(6));
        QCOMPARE(m_client->getItem(steadyId)->getValue(), QVariant("as ever"));
    }

    /// Reading and what fails start no service; only who asks for that does.
    void activation()
    {
        const QString marker = m_root->filePath("started");
        writeFile(m_bus->folder.filePath("services/org.uiutils.kiv.sleeper.service"),
                QString("[D-BUS Service]\nName=org.uiutils.kiv.sleeper\nExec=/usr/bin/touch %1\n")
                        .arg(marker)
                        .toUtf8());
        m_backend.reset();
        m_kivd->end();
        m_bus->kill();
        m_bus->start();
        m_kivd = startKivd();
        m_backend = std::make_unique<BusBackend>();
        KIVClientInterface* sleeper = m_backend->serviceClient("sleeper", nullptr);
        QVERIFY(m_backend->waitForServices(patience));
        QVERIFY(!sleeper->isValid() && !sleeper->getItem(levelId) && sleeper->getItemIds().isEmpty());
        QVERIFY(!sleeper->setItem(levelId, 1));
        QVERIFY(!sleeper->invokeAction(":action:life:first:"));
        QVERIFY(Stranger().isConnected());
        QVERIFY(!QFile::exists(marker));
        m_backend->startServices();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(marker), patience);

        // What the bus does start is waited for.
        m_backend.reset();
        m_kivd->end();
        m_bus->kill();
        QCOMPARE(QProcess::execute(QCoreApplication::applicationDirPath() + "/kivd",
                         {"--services", m_root->filePath("services"), "--root", m_root->filePath("root"),
                                 "--activation-files", m_bus->folder.filePath("services")}),
                0);
        m_bus->start();
        m_backend = std::make_unique<BusBackend>();
        m_backend->startServices();
        QVERIFY(m_backend->waitForServices(patience));
        QVERIFY(m_backend->serviceNames().contains("life"));
    }

    /// Service files are edited under a page. What they say anew counts, what clients have set stays, and a file that
    /// is only half there takes nothing away.
    void filesAreEdited()
    {
        m_kivd->end();
        QVERIFY(isGone());
        m_kivd = startKivd("services", {"--follow", "--without", "hidden"});
        QVERIFY(isThere());
        QVERIFY(m_client->setItem(levelId, 6));
        Manifest manifest(m_client, "", "life");
        const KivData* steady = Manifest::getKivData(steadyId);
        const QString file = m_root->filePath("services/life.service.json");
        const QByteArray text = contentsOf(file);

        // Twice: what was published again follows as well.
        for (const QByteArray& word : {QByteArray("edited"), QByteArray("edited again")}) {
            writeFile(file, QByteArray(text).replace("as ever", word));
            QTRY_COMPARE_WITH_TIMEOUT(steady->getValue(), QVariant(QString(word)), patience);
            QTRY_VERIFY_WITH_TIMEOUT(steady->isReady(), patience);
            QCOMPARE(level(), QVariant(6));
        }
        QVERIFY(m_client->setItem(levelId, 7));

        // The program reads the half file before the added one, because its name comes first.
        QSignalSpy ended(m_client, &KIVClientInterface::itemsChanged);
        writeFile(file, text.left(text.size() / 2));
        writeFile(m_root->filePath("services/more.service.json"),
                R"({ "service": "more", "items": [{ "id": ":result:more:n:", "type": "int", "value": 1 }] })");
        writeFile(m_root->filePath("services/hidden.service.json"),
                R"({ "service": "hidden", "items": [{ "id": ":result:hidden:n:", "type": "int", "value": 1 }] })");
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->serviceNames().contains("more"), patience);
        QVERIFY(ended.isEmpty() && m_client->isValid());
        QVERIFY(!m_backend->serviceNames().contains("hidden"));
        QCOMPARE(level(), QVariant(7));

        // Another name is another service.
        writeFile(file, QByteArray(text).replace(R"("life")", R"("renamed")"));
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->serviceNames().contains("renamed"), patience);
        QVERIFY(isGone());
    }

    /// A service whose file moves it does so in another process, and vanishes and returns there.
    void simulated()
    {
        writeFile(m_root->filePath("moving/m.service.json"), R"({ "service": "moving", "items": [
            { "id": ":result:moving:n:", "type": "int", "judged": { "passing": { "to": 2 } },
              "moves": { "as": "steps", "every": 10, "values": [1, 2, 3], "then": "stay" } } ],
            "happens": [{ "after": 500, "for": 500, "every": 1000, "vanish": true }] })");
        qputenv("KIV_SIMULATION", "on");
        const std::unique_ptr<Child> kivd = startKivd("moving");
        qputenv("KIV_SIMULATION", "off");
        m_client = m_backend->serviceClient("moving", nullptr);
        const auto isMoved = [this] {
            const KIVClientItem* item = m_client->getItem(":result:moving:n:");
            return item && item->getValue() == 3 && item->getQualityCode() == KIVClientItem::QualityFailing;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isMoved(), patience);
        QVERIFY(isGone());
        QVERIFY(isThere());
        QVERIFY(isGone());
    }
};

QTEST_GUILESS_MAIN(BusLifeTest)

#include "tst_buslife.moc"
