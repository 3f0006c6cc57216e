#include "files.h"
#include "qmlwarnings.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/host.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QLocale>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using kiv::embedded::EmbeddedBackend;
using uiutils::Host;
using uiutils::HostSetup;

namespace {

constexpr int patience = 60'000;
const QString imageFolder = "/base/qml/common/images/";

QByteArray service(const QByteArray& name, const QByteArray& value)
{
    return R"({ "service": ")" + name + R"(", "items": [ { "id": ":config:)" + name
            + R"(:name:", "type": "std::string", "value": ")" + value + R"(" } ] })";
}

/// A page that shows one text, which is an expression over services.
class Page
{
public:
    Page(Host& host, const QByteArray& expression)
    {
        m_warnings.watch(&m_engine);
        host.showTo(&m_engine);
        QQmlComponent component(&m_engine);
        component.setData("import QtQml 2.15\nimport UiUtils 1.0\nQtObject { property string text: " + expression + " }", QUrl());
        m_page.reset(component.create());
        if (!m_page)
            qFatal("%s", qPrintable(component.errorString()));
    }
    /// Or what the engine has warned of.
    QString text()
    {
        const QStringList warnings = m_warnings.take();
        return warnings.isEmpty() ? m_page->property("text").toString() : warnings.join('\n');
    }

private:
    QmlWarnings m_warnings;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_page;
};

} // namespace

/// An application that has nothing but the host class and its pages. Its modules are found without QML2_IMPORT_PATH.
class HostTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    HostSetup setup() const { return {{path("services")}, path("root")}; }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char* name : {"KIV_PLATFORM", "KIV_SERVICES", "QML2_IMPORT_PATH"})
            qunsetenv(name);
        writeFile(path("services/a.service.json"), service("com.example.test", "first"));
        writeFile(path("services/c.service.json"), service("other", "second"));
    }

    void everyServiceHasAManifestThatPagesKnow()
    {
        Host host;
        QVERIFY(host.start(setup()));
        QCOMPARE(host.problems(), QStringList());
        QCOMPARE(host.serviceNames(), QStringList({"com.example.test", "other"}));
        QCOMPARE(host.manifest("com.example.test")->getQmlTag(), "test");
        QCOMPARE(host.manifest("test"), nullptr);
        QCOMPARE(host.ownService("other")->name(), "other");
        Page page(host, "test_cfg_name.value + services['com.example.test'].name + services.other.name + other_cfg_name.value");
        QCOMPARE(page.text(), "firstcom.example.testothersecond");
    }

    /// What a user changes is there at the next start, below the same root.
    void settingsAreKept()
    {
        for (const char* expected : {"second", "changed"}) {
            Host host;
            QVERIFY(host.start(setup()));
            auto* name = Manifest::getKivData(":config:other:name:");
            QCOMPARE(name->getValueString(), expected);
            name->setValue("changed");
        }
    }

    void problemsAreTold()
    {
        writeFile(path("services/b.service.json"), "{ no service");
        Host host;
        QVERIFY(host.start(setup()));
        QCOMPARE(host.serviceNames().size(), 2);
        QCOMPARE(host.problems().size(), 1);
        QVERIFY2(host.problems().constFirst().contains("b.service.json"), qPrintable(host.problems().constFirst()));
    }

    void itDoesNotStart_data()
    {
        QTest::addColumn<QByteArray>("platform");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("words");
        QTest::newRow("no services") << QByteArray("embedded") << "none" << "No service could be loaded from ";
        QTest::newRow("unknown platform") << QByteArray("elsewhere") << "services" << "KIV_PLATFORM is \"elsewhere\"";
    }
    void itDoesNotStart()
    {
        QFETCH(const QByteArray, platform);
        QFETCH(const QString, folder);
        QFETCH(const QString, words);
        qputenv("KIV_PLATFORM", platform);
        Host host;
        QVERIFY(!host.start({{path(folder)}, path("root")}));
        QVERIFY2(host.problems().constLast().contains(words), qPrintable(host.problems().join('\n')));
        QVERIFY(host.serviceNames().isEmpty());
    }

    /// Files of the root are the user's, even those that cannot be read.
    void missingImagesArePlaced()
    {
        const QString folder = path("root") + imageFolder;
        writeFile(folder + "pass_icon.png", "mine");
        QVERIFY(QFile::link("/nowhere", folder + "fail_icon.png"));
        for (int start = 0; start < 2; ++start) {
            Host host;
            QVERIFY(host.start(setup()));
            QCOMPARE(host.problems(), QStringList());
        }
        QCOMPARE(contentsOf(folder + "pass_icon.png"), "mine");
        QCOMPARE(QFile::symLinkTarget(folder + "fail_icon.png"), "/nowhere");
        for (const char* name : {"marginal_icon.png", "Norda_Color-medium.png"})
            QCOMPARE(contentsOf(folder + name), contentsOf(UIUTILS_SOURCE_DIR "/assets/" + QString(name)));
        QCOMPARE(namesIn(folder).size(), 4);
    }

    /// Pages are useful without images.
    void imagesThatCannotBePlaced()
    {
        writeFile(path("root/base"), "a file");
        Host host;
        QVERIFY(host.start(setup()));
        QCOMPARE(host.problems().filter(imageFolder).size(), 1);
    }

    /// A back end of the application's own.
    void namedServices()
    {
        EmbeddedBackend backend;
        QCOMPARE(backend.loadFolders({path("services")}), QStringList());
        // Reached later, as on a platform whose services start slowly.
        KIVClientInterface::getSessionBusClient("other");
        backend.service("other")->setReachable(false);
        Host host;
        QVERIFY(host.start({{}, path("root"), {}, {"com.example.test", "other", "absent"}}));
        QCOMPARE(host.problems(), QStringList("There is no service absent."));
        QCOMPARE(host.serviceNames(), QStringList("com.example.test"));
        QSignalSpy added(&host, &Host::serviceAdded);
        Page page(host, "test_cfg_name.value + (typeof other_cfg_name === 'undefined' ? '' : other_cfg_name.value)");
        QCOMPARE(page.text(), "first");
        for (bool isReachable : {true, false, true})
            backend.service("other")->setReachable(isReachable);
        QCOMPARE(page.text(), "firstsecond");
        QCOMPARE(added, QList<QVariantList>({{"other"}}));
    }

    void aServiceThatComesLater()
    {
        qputenv("KIV_PLATFORM", "bus");
        EmbeddedBackend backend;
        kiv::bus::BusPublisher publisher;
        Host host;
        QVERIFY(host.start(setup()));
        QCOMPARE(host.serviceNames(), QStringList());
        QCOMPARE(host.ownService("other"), nullptr);
        Page page(host, "services.other ? other_cfg_name.value + services.other.name : 'nothing'");
        QCOMPARE(page.text(), "nothing");
        QSignalSpy added(&host, &Host::serviceAdded);
        QVERIFY(backend.loadFile(path("services/c.service.json")));
        QVERIFY(publisher.publish(backend.service("other")));
        QVERIFY(added.wait(patience));
        QCOMPARE(added, QList<QVariantList>({{"other"}}));
        QCOMPARE(page.text(), "secondother");
    }

    /// On the bus the application publishes its own service, and no other of the files.
    void itsOwnService()
    {
        qputenv("KIV_PLATFORM", "bus");
        Host host;
        HostSetup own = setup();
        own.ownServices = QStringList("other");
        QVERIFY(host.start(own));
        QVERIFY(host.ownService("other"));
        QVERIFY(QTest::qWaitFor([&] { return !host.serviceNames().isEmpty(); }, patience));
        QVERIFY(host.ownService("other")->setValue(":config:other:name:", "driven"));
        Page page(host, "other_cfg_name.value");
        QVERIFY(QTest::qWaitFor([&] { return page.text() == "driven"; }, patience));
        QCOMPARE(host.serviceNames(), QStringList("other"));
    }

    /// The application's texts, in the language of the default locale.
    void translations()
    {
#ifdef UIUTILS_LRELEASE
        const QString ts = writeFile(path("de.ts"), "<TS version='2.1'><context><name>Shop</name><message><source>open</source>"
                                                    "<translation>offen</translation></message></context></TS>");
        for (const char* name : {"mine/tst_host_de.qm", "mine/uiutils_fr.qm"}) {
            QVERIFY(QDir().mkpath(path("mine")));
            QVERIFY(!outputOf(UIUTILS_LRELEASE, {ts, "-qm", path(name)}).startsWith("status"));
        }
        const QLocale before;
        for (const auto& [language, text] : {std::pair("de_AT", "offen"), {"fr_FR", "offen"}, {"en_US", "open"}}) {
            QLocale::setDefault(QLocale(language));
            Host host;
            HostSetup with = setup();
            with.translationFolders = QStringList {path("nowhere"), path("mine")};
            QVERIFY(host.start(with));
            QCOMPARE(QCoreApplication::translate("Shop", "open"), text);
        }
        QLocale::setDefault(before);
        QCOMPARE(QCoreApplication::translate("Shop", "open"), "open");
#else
        QSKIP("lrelease is not installed");
#endif
    }
};

QTEST_GUILESS_MAIN(HostTest)
#include "tst_host.moc"
