#include "files.h"
#include "languages/languages.h"
#include "qmlwarnings.h"
#include "replay/recorder_p.h"
#include "ui_host/host.h"

#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using uiutils::Host;
using uiutils::HostSetup;
using uiutils::Languages;

namespace {

constexpr int patience = 60'000;

// Units of their own and of formatters; ids in other scripts; the same word for two things.
const QByteArray service = R"({ "service": "probe", "items": [
    { "id": ":config:probe:setup:mode:", "type": "int", "label": "Mode", "value": 1, "unit": "turns",
      "choices": [{ "value": 0, "name": "Low", "label": "Low" }, { "value": 1, "name": "High" }] },
    { "id": ":config:probe:setup:steps:", "type": "double", "label": "Steps", "value": 4, "minimum": 0, "maximum": 10,
      "attributes": { "inputType": 11, "formatter": "decimal:steps" } },
    { "id": ":result:probe:test:speed:", "type": "double", "label": "Speed", "value": 2500, "attributes": { "formatter": "si:rev" } },
    { "id": ":result:probe:test:far:", "type": "double", "label": "Far", "value": 2500, "attributes": { "formatter": "distance" } },
    { "id": ":result:probe:test:größe:", "type": "double", "label": "Size", "value": 1, "unit": "turns" },
    { "id": ":result:probe:测试:大小:", "type": "double", "label": "Size", "value": 1, "unit": "turns" },
    { "id": ":action:probe:test:start:", "type": "action", "label": "Start", "does": { "fail": "There is no light." } },
    { "id": ":action:probe:test:name:", "type": "action", "label": "Name", "does": { "reply": "Mode" } }
] })";

const QByteArray page = R"(
import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

Item {
    property string shown: [
        probe_cfg_mode.label, probe_cfg_mode.enumLabel(0), probe_cfg_mode.valueString, probe_cfg_mode.unitString,
        probe_cfg_steps.valueString, probe_cfg_steps.unitString, probe_cfg_steps.rangeDescription,
        probe_res_speed.valueString, probe_res_speed.unitString, probe_res_far.valueString,
        probe_res_größe.label, probe_res_大小.label,
        entry.label + "/" + entry.unit + "/" + entry.face.choices[0].label, field.unit, field.face.tidyRange
    ].join("|")

    ChoiceEntry { id: entry; item: probe_cfg_mode }
    NumberEntry { id: field; item: probe_cfg_steps }
}
)";

const QString english = u8"Mode|Low|High turns|turns|4 steps|steps|0 steps - 10 steps|2.500 krev|krev|2.500 km|Size|Size|Mode/turns/Low|steps|0 steps - 10 steps";
const QString german = u8"Betriebsart|Niedrig|Hoch Umdrehungen|Umdrehungen|4 Schritte|Schritte|0 Schritte - 10 Schritte|2,500 kU|kU|2,500 Kilometer|"
                       u8"Größe|Weite|Betriebsart/Umdrehungen/Niedrig|Schritte|0 Schritte - 10 Schritte";

struct Message
{
    const char* source;
    const char* translation;
    const char* comment = "";
};

const QVector<Message> inGerman {{"Mode", "Betriebsart"}, {"Low", "Niedrig"}, {"High", "Hoch"}, {"turns", "Umdrehungen"}, {"steps", "Schritte"},
        {"rev", "U"}, {"km", "Kilometer"}, {"Size", u8"Größe"}, {"Size", "Weite", u8":result:probe:测试:大小:"}, {"There is no light.", "Es ist kein Licht da."}};

QByteArray contextOf(const char* name, const QVector<Message>& messages)
{
    QByteArray ts = QByteArray("<context><name>") + name + "</name>";
    for (const Message& message : messages)
        ts += QByteArray("<message><source>") + message.source + "</source><comment>" + message.comment + "</comment><translation>"
                + message.translation + "</translation></message>";
    return ts + "</context>";
}

} // namespace

/// What services say, in the language of whoever reads it.
class ServiceTextsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString beside(const QString& name) const { return m_folder->filePath("services/translations/" + name); }
    void compile(const QString& file, const QByteArray& contexts)
    {
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        const QString ts = writeFile(m_folder->filePath("source.ts"), "<TS version='2.1'>" + contexts + "</TS>");
        const QString output = outputOf(UIUTILS_LRELEASE, {ts, "-qm", file});
        QVERIFY2(!output.startsWith("status"), qPrintable(output));
    }
    HostSetup setup() const { return {{m_folder->filePath("services")}, m_folder->filePath("root"), {"probe"}}; }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        writeFile(m_folder->filePath("services/probe.service.json"), service);
        QDir().mkpath(m_folder->filePath("root"));
        compile(beside("probe_de.qm"), contextOf("ServiceItem", inGerman));
    }
    void cleanup() { qunsetenv("KIV_PLATFORM"); }

    void everythingFollows_data()
    {
        QTest::addColumn<QByteArray>("platform");
        QTest::newRow("embedded") << QByteArray("embedded");
        QTest::newRow("bus") << QByteArray("bus");
    }
    void everythingFollows()
    {
        QFETCH(const QByteArray, platform);
        qputenv("KIV_PLATFORM", platform);
        compile(beside("probe_ar.qm"), contextOf("ServiceItem", {{"Mode", u8"الوضع"}, {"turns", u8"دورات"}, {"steps", u8"خطوات"}}));
        Host host;
        QVERIFY(host.start(setup()));
        QTRY_VERIFY_WITH_TIMEOUT(host.serviceNames().contains("probe"), patience);
        QmlWarnings warnings;
        QQmlEngine engine;
        warnings.watch(&engine);
        host.showTo(&engine);
        QQmlComponent component(&engine);
        component.setData(page, QUrl());
        const std::unique_ptr<QObject> root(component.create());
        QVERIFY2(root, qPrintable(component.errorString()));
        const auto shown = [&] { return root->property("shown").toString(); };
        QCOMPARE(shown(), english);
        QVERIFY(host.setLanguage("de"));
        QCOMPARE(shown(), german);
        QVERIFY(host.setLanguage("ar"));
        QVERIFY2(shown().startsWith(u8"الوضع|Low|High دورات|دورات|4 خطوات|خطوات|0 خطوات - 10 خطوات|"), qPrintable(shown()));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QVERIFY(host.setLanguage("en"));
        QCOMPARE(shown(), english);
        QCOMPARE(warnings.take(), QStringList());

        // An error is for people; a reply may be for programs.
        QVERIFY(host.setLanguage("de"));
        KIVClientInterface* const client = KIVClientInterface::getSessionBusClient("probe");
        QString reply;
        QVERIFY(!client->sendAction(":action:probe:test:start:", QString(), &reply, patience));
        QCOMPARE(client->getLastError(), "Es ist kein Licht da.");
        QVERIFY(client->sendAction(":action:probe:test:name:", QString(), &reply, patience));
        QCOMPARE(reply, "Mode");
        QSignalSpy errors(client, &KIVClientInterface::SigError);
        host.ownService("probe")->reportError("There is no light.");
        QTRY_COMPARE_WITH_TIMEOUT(errors.size(), 1, patience);
        QCOMPARE(errors.at(0).at(0).toString(), "Es ist kein Licht da.");
    }

    /// Pages that speak English under labels that speak Dutch are no offer. A service's catalogue says nothing of the
    /// application's own texts, and the application has the last word about the service's.
    void servicesBringNoLanguage()
    {
        compile(beside("probe_nl.qm"), contextOf("ServiceItem", {{"Mode", "Modus"}}));
        compile(beside("probe_de.qm"),
                contextOf("ServiceItem", {{"Mode", "Betriebsart"}, {"High", "Hoch"}}) + contextOf("ReportTemplate", {{"Value", "FALSCH"}}));
        compile(m_folder->filePath("mine/app_de.qm"), contextOf("ServiceItem", {{"High", "Oben"}}));
        Host host;
        HostSetup own = setup();
        own.translationFolders = QStringList(m_folder->filePath("mine"));
        QVERIFY(host.start(own));
        QVERIFY(!host.setLanguage("nl"));
        QCOMPARE(Languages::instance()->available().size(), 2);
        QVERIFY(host.setLanguage("de"));
        QCOMPARE(QCoreApplication::translate("ReportTemplate", "Value"), "Wert");
        const KIVClientItem* const mode = KIVClientInterface::getSessionBusClient("probe")->getItem(":config:probe:setup:mode:");
        QCOMPARE(mode->getLabel(), "Betriebsart");
        QCOMPARE(mode->getValueString(), "Oben turns");
    }

    /// What a folder may hold besides good catalogues. Each is told where it is wrong, and the others count.
    void whatAFolderMayHold()
    {
        const QByteArray whole = contentsOf(beside("probe_de.qm"));
        writeFile(beside("a_half_de.qm"), whole.left(whole.size() / 2));
        writeFile(beside("b_text_de.qm"), u8"Größe=Size\n");
        QFile huge(beside("c_huge_de.qm"));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.write(whole) > 0 && huge.resize(qint64(1) << 27));
        QVERIFY(QFile::link("/dev/zero", beside("d_endless_de.qm")));
        QVERIFY(QFile::link(m_folder->filePath("nothing"), beside("e_dangling_de.qm")));
        // A link out of the folder is a catalogue like any other: whoever installs services decides.
        compile(m_folder->filePath("elsewhere.qm"), contextOf("ServiceItem", {{"Low", "Tief"}}));
        QVERIFY(QFile::link(m_folder->filePath("elsewhere.qm"), beside("zz_link_de.qm")));
        QVERIFY(QDir().mkpath(beside("f_folder_de.qm")));
        Host host;
        QVERIFY(host.start(setup()));
        for (const char* damaged : {"a_half", "b_text", "c_huge"})
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString("The translations in .*/%1_de.qm cannot be read").arg(damaged)));
        QVERIFY(host.setLanguage("de"));
        const KIVClientItem* const mode = KIVClientInterface::getSessionBusClient("probe")->getItem(":config:probe:setup:mode:");
        QCOMPARE(mode->getLabel(), "Betriebsart");
        QCOMPARE(mode->getValueString(), "Hoch Umdrehungen");
    }

    /// Whoever translates sees it at once. A tool that writes the file in its place ends nobody who has read it.
    void cataloguesAreFollowed()
    {
        Host host;
        QVERIFY(host.start(setup()));
        QVERIFY(host.setLanguage("de"));
        host.followServiceFiles();
        const KIVClientItem* const mode = KIVClientInterface::getSessionBusClient("probe")->getItem(":config:probe:setup:mode:");
        QSignalSpy changes(Languages::instance(), &Languages::currentChanged);
        QFile catalogue(beside("probe_de.qm"));
        QVERIFY(catalogue.resize(0));
        QCOMPARE(mode->getLabel(), "Betriebsart");
        compile(beside("probe_de.qm"), contextOf("ServiceItem", {{"Mode", "Modus"}}));
        QTRY_COMPARE_WITH_TIMEOUT(mode->getLabel(), "Modus", patience);
        QCOMPARE(Languages::instance()->current(), "de");
        QVERIFY(!changes.isEmpty());
    }

    /// A recording is played where another language is spoken.
    void recordingsKeepTheSource()
    {
        Host host;
        QVERIFY(host.start(setup()));
        QVERIFY(host.setLanguage("de"));
        QByteArray lines;
        kiv::replay::Recorder recorder([&lines](const QByteArray& line) { lines += line; });
        recorder.follow(KIVClientInterface::getSessionBusClient("probe"));
        recorder.lookAround(100);
        for (const char* source : {"\"label\":\"Mode\"", "\"unit\":\"turns\"", "\"name\":\"High\""})
            QVERIFY2(lines.contains(source), lines.constData());
        for (const char* word : {"Betriebsart", "Umdrehungen", "Hoch", "Schritte", u8"Größe", "\"kU\""})
            QVERIFY2(!lines.contains(word), lines.constData());
    }
};

QTEST_MAIN(ServiceTextsTest)
#include "tst_servicetexts.moc"
