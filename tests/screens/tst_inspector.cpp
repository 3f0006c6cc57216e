#include "stage.h"

#include "inspector/inspectorpanel.h"
#include "service/manifest.h"
#include "service/kivdata.h"
#include "ui_host/host.h"

#include <embedded/embeddedservice.h>

#include <QQuickItem>
#include <QTemporaryDir>

using uiutils::inspector::InspectorPanel;

/// The pages of the inspector, alone in a window.
class InspectorScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judged()
    {
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        ScreenAudit::prepare();
        QTemporaryDir root;
        uiutils::Host host;
        QVERIFY(host.start({{UIUTILS_SOURCE_DIR "/platform/reference/services"}, root.path()}));
        QQuickWindow window;
        InspectorPanel panel(&host);
        host.showTo(panel.engine());
        QQuickItem* const item = panel.load();
        QVERIFY2(item, qPrintable(panel.error()));
        item->setParentItem(window.contentItem());
        const auto fill = [&] { item->setSize(window.size()); };
        connect(&window, &QWindow::widthChanged, item, fill);
        connect(&window, &QWindow::heightChanged, item, fill);
        window.show();

        const QMap<QString, QString> chosen {{"setting", ":config:optical:setup:backscatter:"}, {"result", m_result}, {"action", m_action}};
        auto* const tabs = item->findChild<QQuickItem*>("inspectorTabs");
        QVERIFY(tabs);
        Stage stage(panel.engine(), &window, {"items", "setting", "result", "action", "services", "log"}, [&](const QString& page) {
            const int tab = QStringList {"", "services", "log"}.indexOf(page);
            tabs->setProperty("currentIndex", qMax(0, tab));
            item->setProperty("chosen", QVariant::fromValue<QObject*>(Manifest::getKivData(chosen.value(page))));
            QCOMPARE(item->property("chosen").value<QObject*>() != nullptr, chosen.contains(page));
            host.ownService("optical")->setValue(m_result, ++m_value);
        });
        stage.judgeAll();
        QCOMPARE(stage.report(), 0);
    }

private:
    const QString m_result = ":result:optical:test:loss:";
    const QString m_action = ":action:optical:test:start:";
    double m_value = 1;
};

QTEST_MAIN(InspectorScreensTest)
#include "tst_inspector.moc"
