#include "files.h"
#include "languages/languages.h"
#include "module/modulepath.h"
#include "qmlwarnings.h"
#include "ui_host/host.h"

#include <QGuiApplication>
#include <QLocale>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using uiutils::Host;
using uiutils::HostSetup;
using uiutils::Languages;

namespace {

constexpr int patience = 60'000;

// Everything that can speak a language: texts and counts of pages, locale, items of services, the library's own settings.
const QByteArray page = R"(
import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

Item {
    property string shown: [
        qsTranslate("ReportTemplate", "Value"),
        Number(1234.5).toLocaleString(Qt.locale(), "f", 1),
        new Date(2026, 9, 22).toLocaleDateString(Qt.locale(), "dddd d MMMM"),
        basemgr_cfg_saveLocation.label,
        basemgr_cfg_saveLocation.enumLabel(2),
        basemgr_cfg_saveLocation.valueString,
        optical_res_length.valueString,
        report.settings.reportName.label,
        report.settings.reportFormat.enumLabels[5],
        choice.valueString,
        entry.label + entry.face.choices[2].label,
        Languages.name,
        Qt.application.layoutDirection === Qt.RightToLeft ? "<" : ">"
    ].join("|")
    property int changes: 0

    Report { id: report }
    ChoiceEntry { id: entry; item: basemgr_cfg_saveLocation }
    EnumUiData {
        id: choice
        uiEnumList: UiDataEnums { UiEnumType { name: "a"; value: 0; label: qsTranslate("TemplateToHtmlWriter", "Pass") } }
        value: 0
    }
    Connections { target: Languages; function onCurrentChanged() { ++changes } }
}
)";

const QString english = "Value|1,234.5|Thursday 22 October|Save Location|Internal and USB|Internal|18.453 km|Name|ALL|Pass|Save LocationInternal and USB|English|>";
const QString german = "Wert|1.234,5|Donnerstag 22 Oktober|Speicherort|Intern und USB|Intern|18,453 km|Name|ALLE|Bestanden|SpeicherortIntern und USB|Deutsch|>";

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    HostSetup setup() const { return {{UIUTILS_SOURCE_DIR "/platform/reference/services"}, m_folder.path(), {"basemgr", "optical"}}; }

private Q_SLOTS:
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
        Host host;
        QVERIFY(host.start(setup()));
        QTRY_VERIFY_WITH_TIMEOUT(host.serviceNames().contains("optical") && host.serviceNames().contains("basemgr"), patience);
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
        QVERIFY2(shown().endsWith("|<"), qPrintable(shown()));
        QVERIFY2(shown().contains("1.234,5|"), qPrintable(shown()));
        QVERIFY(host.setLanguage("ja"));
        QVERIFY2(shown().endsWith(u8"|日本語|>"), qPrintable(shown()));
        QVERIFY(host.setLanguage("en"));
        QCOMPARE(shown(), english);
        QCOMPARE(root->property("changes").toInt(), 4);
        for (const char* none : {"en", "xx", ""})
            QCOMPARE(host.setLanguage(none), qstrcmp(none, "en") == 0);
        QCOMPARE(root->property("changes").toInt(), 4);
        QCOMPARE(shown(), english);
        QCOMPARE(warnings.take(), QStringList());
    }

    /// Pages of an engine that the host does not know follow too. A label that a page has given stays.
    void foreignEnginesAndLabels()
    {
        Host host;
        QVERIFY(host.start(setup()));
        QQmlEngine engine;
        engine.addImportPath(uiutils::qmlImportPath());
        QQmlComponent component(&engine);
        component.setData("import QtQml 2.15\nimport UiUtils 1.0\nReport { readonly property string shown: qsTranslate('ReportTemplate', 'Value');"
                          "Component.onCompleted: settings.reportName.label = 'Mine' }", QUrl());
        const std::unique_ptr<QObject> report(component.create());
        QVERIFY(host.setLanguage("fr"));
        QCOMPARE(report->property("shown").toString(), "Valeur");
        QQmlExpression label(engine.contextForObject(report.get()), report.get(), "settings.reportName.label");
        QCOMPARE(label.evaluate().toString(), "Mine");
    }

    void whatIsOffered()
    {
        Host host;
        QVERIFY(host.start(setup()));
        const Languages* languages = Languages::instance();
        QStringList offered;
        const QVariantList available = languages->available();
        for (const QVariant& language : available) {
            const QVariantMap values = language.toMap();
            offered += values["code"].toString() + ' ' + values["name"].toString() + (values["isRightToLeft"].toBool() ? " <" : "");
        }
        QCOMPARE(offered.join(", "), u8"en English, ar العربية <, de Deutsch, es Español, fr Français, ja 日本語");
        QCOMPARE(languages->remark(), QString());
        QVERIFY(host.setLanguage("es"));
        QVERIFY(!languages->remark().isEmpty());
        // For page writers only.
        QVERIFY(host.setLanguage("pseudo"));
    }

    /// Where an application has translations, what it has counts; and it brings languages that the library has not.
    void anApplicationsOwn()
    {
        const QString ts = writeFile(m_folder.filePath("a.ts"), "<TS version='2.1'><context><name>Languages</name><message>"
                                                                "<source>English</source><translation>Nederlands</translation></message></context></TS>");
        QVERIFY(QDir().mkpath(m_folder.filePath("mine")));
        for (const char* name : {"mine/site_map_nl.qm", "mine/tst_languages_de_AT.qm"})
            QVERIFY(!outputOf(UIUTILS_LRELEASE, {ts, "-qm", m_folder.filePath(name)}).startsWith("status"));
        const QLocale before;
        QLocale::setDefault(QLocale("de_AT"));
        {
            Host host;
            HostSetup own = setup();
            own.translationFolders = QStringList(m_folder.filePath("mine"));
            QVERIFY(host.start(own));
            const Languages* languages = Languages::instance();
            QCOMPARE(languages->current(), "de_AT");
            // From the German of the library.
            QCOMPARE(QCoreApplication::translate("ReportTemplate", "Value"), "Wert");
            QCOMPARE(languages->available().size(), 3);
            QCOMPARE(languages->available().at(2).toMap()["name"].toString(), "Nederlands");
            QVERIFY(host.setLanguage("nl"));
            QCOMPARE(QLocale().name(), "nl_NL");
            // The country is the system's.
            QVERIFY(host.setLanguage("de_AT"));
            QCOMPARE(QLocale().name(), "de_AT");
            QVERIFY(host.setLanguage("ja"));
        }
        QCOMPARE(QLocale().name(), "de_AT");
        QCOMPARE(QCoreApplication::translate("ReportTemplate", "Value"), "Value");
        QLocale::setDefault(before);
    }

    /// What a folder may hold: half a file, a region with a number, a language of which Qt has no name.
    void cataloguesOfEveryKind()
    {
        const QString folder = m_folder.filePath("others");
        QVERIFY(QDir().mkpath(folder));
        const QByteArray whole = contentsOf(installed("uiutils_de.qm"));
        writeFile(folder + "/tst_languages_it.qm", whole.left(whole.size() / 2));
        const QString ts = writeFile(m_folder.filePath("b.ts"),
                "<TS version='2.1'><context><name>A</name><message><source>a</source><translation>b</translation></message></context></TS>");
        for (const char* code : {"es_419", "xx"})
            QVERIFY(!outputOf(UIUTILS_LRELEASE, {ts, "-qm", folder + "/tst_languages_" + code + ".qm"}).startsWith("status"));
        Languages* const languages = Languages::instance();
        Host host;
        HostSetup own = setup();
        own.translationFolders = QStringList(folder);
        // The language that the user had chosen.
        const auto choice = connect(languages, &Languages::availableChanged, [&] { host.setLanguage("es_419"); });
        QVERIFY(host.start(own));
        disconnect(choice);
        QCOMPARE(languages->current(), "es_419");
        QStringList offered;
        const QVariantList available = languages->available();
        for (const QVariant& language : available)
            offered += language.toMap()["code"].toString() + ' ' + language.toMap()["name"].toString();
        QCOMPARE(offered.size(), 3);
        QVERIFY2(offered.at(1).startsWith("es_419 Español") && offered.at(2) == "xx xx", qPrintable(offered.join(", ")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("The translations in .*_it.qm cannot be read"));
        QVERIFY(!host.setLanguage("it"));
        QCOMPARE(languages->current(), "es_419");
    }

    /// Entries take no others, and two kinds of digits on a page would be read wrongly.
    void digitsArePlain()
    {
        const QLocale before;
        QLocale::setDefault(QLocale("ar_SA"));
        {
            Host host;
            QVERIFY(host.start(setup()));
            QCOMPARE(Languages::instance()->current(), "ar");
            QCOMPARE(QLocale().toString(12), "12");
            QCOMPARE(QLocale().monthName(11), u8"نوفمبر");
        }
        QCOMPARE(QLocale().name(), "ar_SA");
        QLocale::setDefault(before);
    }

    /// Who speaks German and lives elsewhere keeps the dates and numbers of the place.
    void theCountryStays()
    {
        const QLocale before;
        QLocale::setDefault(QLocale("de_CH"));
        {
            Host host;
            QVERIFY(host.start(setup()));
            for (const auto& [language, name] : {std::pair("fr", "fr_FR"), {"de", "de_CH"}}) {
                QVERIFY(host.setLanguage(language));
                QCOMPARE(QLocale().name(), name);
            }
        }
        QLocale::setDefault(before);
    }

    /// Qt works the direction out again whenever anybody installs a translator.
    void theDirectionStays()
    {
        Host host;
        QVERIFY(host.start(setup()));
        QVERIFY(host.setLanguage("ar"));
        QTranslator foreign;
        QVERIFY(foreign.load(installed("uiutils_de.qm")));
        QVERIFY(QCoreApplication::installTranslator(&foreign));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QCoreApplication::removeTranslator(&foreign);
        QVERIFY(host.setLanguage("de"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

private:
    static QString installed(const QString& name) { return UIUTILS_TRANSLATIONS "/" + name; }
};

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
