#include "stage.h"

#include "common/translations.h"
#include "qmlwarnings.h"
#include "ui_host/host.h"

#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

/// The pages that show the parts of the kit.
class GalleryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        ScreenAudit::prepare();
        QVERIFY(m_host.start({{UIUTILS_SOURCE_DIR "/platform/reference/services"}, m_root.path(), {}, {}, {uiutils::apps::translationsOf("examples")}}));
        m_warnings.watch(&m_engine);
        m_host.showTo(&m_engine);
    }

    void entries()
    {
        m_view.setSource(QUrl::fromLocalFile(m_examples + "gallery.qml"));
        judge({"entries"}, [](const QString&) {});
    }

    void gallery()
    {
        m_view.setSource(QUrl::fromLocalFile(m_examples + "gallery/Gallery.qml"));
        auto* const stack = m_view.rootObject()->findChild<QQuickItem*>("stack");
        judge(QDir(m_examples + "gallery").entryList({"*Page.qml"}), [&](const QString& page) {
            QVariant shown;
            QVERIFY(QMetaObject::invokeMethod(stack, "open", Q_RETURN_ARG(QVariant, shown),
                    Q_ARG(QVariant, QUrl::fromLocalFile(m_examples + "gallery/" + page).toString()), Q_ARG(QVariant, {})));
            QVERIFY(shown.value<QQuickItem*>());
        });
    }

    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

private:
    void judge(const QStringList& pages, const Stage::Show& show)
    {
        QCOMPARE(m_view.status(), QQuickView::Ready);
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.show();
        Stage stage(&m_engine, &m_view, pages, show);
        stage.judgeAll();
        QCOMPARE(stage.report(), 0);
    }

    const QString m_examples = UIUTILS_SOURCE_DIR "/docs/examples/";
    QTemporaryDir m_root;
    uiutils::Host m_host;
    QmlWarnings m_warnings;
    QQmlEngine m_engine;
    QQuickView m_view {&m_engine, nullptr};
};

QTEST_MAIN(GalleryTest)
#include "tst_gallery.moc"
