#include "core/userdata.h"
#include "document/reporttemplate.h"
#include "files/fileutils.h"
#include "files/screenshot.h"
#include "local/uidata.h"
#include "local/uidatacontainer.h"
#include "module/uiutilsmodule.h"
#include "report/report.h"
#include "service/forgivingvalidator.h"
#include "service/kivaggregatedata.h"
#include "service/kivlistaggregatedata.h"
#include "service/kivsignal.h"
#include "service/manifest.h"
#include "service/qmllistaggregate.h"
#include "writers/pdffile.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QFile>
#include <QJsonObject>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(const QMetaObject*)

/// The types as a page reaches them: through an import and through the shared library.
class ModuleTest : public QObject
{
    Q_OBJECT

    /// The description of one type, or an empty text.
    static QString componentText(const QString& name)
    {
        QFile file(UIUTILS_QML_DIR "/UiUtils/plugins.qmltypes");
        if (!file.open(QIODevice::ReadOnly))
            return QString();
        const QStringList components = QString::fromUtf8(file.readAll()).split("\n    Component {");
        for (const QString& component : components) {
            if (component.trimmed().startsWith(QString("name: \"%1\"\n").arg(name)))
                return component;
        }
        return QString();
    }

    static bool mentions(const QString& text, const char* kind, const QString& name)
    {
        return QRegularExpression(QString("\\n        %1 \\{\\s+name: \"%2\"").arg(kind, name)).match(text).hasMatch();
    }

private Q_SLOTS:
    void initTestCase() { uiutils::registerTypes(); }

    /// What tools know of the module, against what the classes have. A cross build does not describe it.
    void descriptionForTools_data()
    {
        if (!UIUTILS_HAS_QMLTYPES)
            QSKIP("The module was built for another machine.");
        QTest::addColumn<const QMetaObject*>("type");
        for (const QMetaObject* type : {&Manifest::staticMetaObject, &KivData::staticMetaObject,
                     &KivAggregateData::staticMetaObject, &KivListAggregateData::staticMetaObject,
                     &QMLListAggregate::staticMetaObject, &KIVSignal::staticMetaObject, &ForgivingValidator::staticMetaObject,
                     &UserData::staticMetaObject, &ReportTemplate::staticMetaObject, &KIVClientInterface::staticMetaObject,
                     &BaseFormatter::staticMetaObject, &UiData::staticMetaObject, &StringUiData::staticMetaObject,
                     &BoolUiData::staticMetaObject, &EnumUiData::staticMetaObject, &UiDataEnums::staticMetaObject,
                     &UiEnumType::staticMetaObject, &UiDataContainer::staticMetaObject, &FileUtils::staticMetaObject,
                     &Screenshot::staticMetaObject, &KIVNotification::staticMetaObject,
                     &KIVNotificationModelManager::staticMetaObject, &PDFFile::staticMetaObject,
                     &Report::staticMetaObject})
            QTest::newRow(type->className()) << type;
    }
    void descriptionForTools()
    {
        QFETCH(const QMetaObject*, type);
        QVERIFY(componentText("QQmlPropertyMap").contains("UiUtils/QMLAggregate 1.0"));
        const QString text = componentText(type->className());
        const bool isManager = type == &KIVNotificationModelManager::staticMetaObject;
        const QString exported = isManager ? "Notifications" : type->className();
        QVERIFY2(text.contains(QString("exports: [\"UiUtils/%1 1.0\"]").arg(exported)), type->className());
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
            QVERIFY2(mentions(text, "Property", type->property(i).name()), type->property(i).name());
        for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
            const QMetaMethod method = type->method(i);
            if (method.access() == QMetaMethod::Private)
                continue;
            // A property's own notifier goes without saying.
            const QString name = method.name();
            if (method.parameterCount() == 0 && name.endsWith("Changed") && mentions(text, "Property", name.chopped(7)))
                continue;
            const char* kind = method.methodType() == QMetaMethod::Signal ? "Signal" : "Method";
            QVERIFY2(mentions(text, kind, name), method.methodSignature());
        }
        for (int i = type->enumeratorOffset(); i < type->enumeratorCount(); ++i)
            QVERIFY2(mentions(text, "Enum", type->enumerator(i).name()), type->enumerator(i).name());
    }

    void aPageBuildsAReport()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQml 2.15
            import UiUtils 1.0
            ReportTemplate {
                Component.onCompleted: {
                    beginReport("page")
                    setKey("title", "From QML")
                    setKey("number", 12.5)
                    setKey("flag", true)
                    addAttribute("unit", 3.5)
                    beginSection("s", "Section")
                    beginTable("t", "Table")
                    addRow("a", "First", 1, { "unit": "dB", "status": 16 })
                    addRow("b", "Second", "two", {})
                    endTable()
                    endSection()
                    endReport()
                }
                property string text: toJson()
                property bool failed: hasError()
            }
        )", QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        const auto* report = qobject_cast<ReportTemplate*>(object.get());
        QVERIFY(report);

        const QJsonObject root = report->object();
        QCOMPARE(root.value("tag").toString(), QString("page"));
        QCOMPARE(root.value("number").toString(), QString("12.5"));
        QCOMPARE(root.value("flag").toString(), QString("true"));
        QCOMPARE(root.value("attr_unit").toString(), QString("3.5"));
        const QJsonObject table = root.value("section_0").toObject().value("table_0").toObject();
        const QJsonObject cell = table.value("row_1").toObject().value("cell_0").toObject();
        QCOMPARE(cell.value("attr_status").toString(), QString("16"));
        QCOMPARE(cell.value("attr_unit").toString(), QString("dB"));
        QCOMPARE(table.value("row_2").toObject().value("cell_0").toObject().value("label").toString(), QString("two"));
    }

    /// What QML can hand over in place of a map of texts, and which of two overloads it means.
    void aPageAsksForFiles()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQml 2.15
            import UiUtils 1.0
            FileUtils {
                property bool roomForBytes: checkDriveSpaceForFile(9e18, "/")
                property bool roomForFile: checkDriveSpaceForFile("/no such file", Qt.resolvedUrl(".").toString().slice(7))
                property var answers: []
                onAccepted: answers.push("yes " + notification.value("Filename") + notification.value("step"))
                onRejected: answers.push("no " + notification.value("Filename") + notification.value("step"))
                function ask() {
                    sendNotificationDeleteRequest("/mnt/usb/a", { step: 2, note: "x" })
                    const asked = Notifications.currentDialog.longLabel
                    Notifications.accept()
                    sendNotificationDeleteRequest("/mnt/usb/b", {})
                    Notifications.reject()
                    sendNotificationOverwriteRequest("", { step: "3", Filename: "own" })
                    Notifications.accept()
                    return asked
                }
            }
        )", QUrl::fromLocalFile("/tmp/"));
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QVERIFY(object->property("roomForFile").toBool());
        QVERIFY(!object->property("roomForBytes").toBool());
        KIVNotificationModelManager::instance()->accept();
        QVariant asked;
        QVERIFY(QMetaObject::invokeMethod(object.get(), "ask", Q_RETURN_ARG(QVariant, asked)));
        QCOMPARE(asked.toString(), QString("Delete File"));
        QCOMPARE(object->property("answers").toStringList(),
                (QStringList {"yes /mnt/usb/a2", "no /mnt/usb/bundefined", "yes own3"}));
    }
};

QTEST_GUILESS_MAIN(ModuleTest)
#include "tst_module.moc"
