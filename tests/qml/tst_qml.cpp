#include "document/reporttemplate.h"
#include "files.h"
#include "qmlwarnings.h"
#include "report/report.h"
#include "report/reportpreview.h"
#include "ui_host/host.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QQmlContext>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QSignalSpy>
#include <QtQuickTest>

#include <memory>

/// A controller whose page stays alive while it saves.
class InteractiveReport : public Report
{
    Q_OBJECT

public:
    InteractiveReport() { setInteractive(true); }
};

/// The service's side, for the pages under test.
class Driver : public QObject
{
    Q_OBJECT

public:
    explicit Driver(kiv::embedded::EmbeddedBackend* backend)
        : m_backend(backend)
    {
    }

    /// The services as their files describe them.
    Q_INVOKABLE void reset()
    {
        for (const char* name : {"field", "entry"}) {
            m_backend->withdraw(name);
            QString problem;
            if (!m_backend->loadFile(QString(UIUTILS_SOURCE_DIR "/tests/qml/services/%1.service.json").arg(name), &problem))
                qFatal("%s", qPrintable(problem));
        }
    }
    Q_INVOKABLE void report(const QString& id, const QVariant& value) { serviceOf(id)->setValue(id, value); }
    Q_INVOKABLE QVariant value(const QString& id) const { return serviceOf(id)->item(id)->getValue(); }
    Q_INVOKABLE void setReady(const QString& id, bool isReady) { serviceOf(id)->setReady(id, isReady); }
    Q_INVOKABLE void setReachable(bool isReachable, const QString& name = "field")
    {
        m_backend->service(name)->setReachable(isReachable);
    }
    Q_INVOKABLE void reportError(const QString& text) { m_backend->service("field")->reportError(text); }

    /// What entries accept and reject, one row in each line.
    Q_INVOKABLE QStringList inputFormats() const
    {
        return QString::fromUtf8(contentsOf(UIUTILS_TEST_DATA_DIR "/inputs/formats.txt")).split('\n').filter(QRegularExpression("^\\["));
    }

    Q_INVOKABLE void setLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }

    /// The file of a report document with so many rows, on an instrument without reports.
    Q_INVOKABLE QString makeDocument(int rows)
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        ReportTemplate document;
        document.beginReport("long");
        document.beginTable("samples", "Samples");
        for (int i = 0; i < rows; ++i)
            document.addRow("sample", "Sample", i, {});
        document.endTable();
        document.endReport();
        return writeFile(m_root->filePath("document.json"), document.toJson().toUtf8());
    }
    Q_INVOKABLE QStringList savedReports() const { return namesIn(m_root->filePath("cust/public/reports/long")); }

    /// Whether the item shows that page of a preview, and nothing blank.
    Q_INVOKABLE static bool shows(QQuickItem* item, uiutils::ReportPreview* preview, int page)
    {
        const QSharedPointer<QQuickItemGrabResult> grabbed = item->grabToImage();
        if (!QSignalSpy(grabbed.data(), &QQuickItemGrabResult::ready).wait())
            return false;
        const QImage shown = grabbed->image().convertToFormat(QImage::Format_RGB32);
        QImage expected(shown.size(), QImage::Format_RGB32);
        expected.fill(Qt::white);
        const QImage blank = expected;
        QPainter painter(&expected);
        painter.scale(shown.width() / preview->pageSize(page).width(), shown.height() / preview->pageSize(page).height());
        preview->paint(painter, page);
        return shown == expected && shown != blank;
    }

    /// The effect of a key that was pressed long ago.
    Q_INVOKABLE void holdKey(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
    }

    /// The engine's warnings since the last call.
    Q_INVOKABLE QStringList takeWarnings() { return m_warnings.take(); }
    void watch(QQmlEngine* engine) { m_warnings.watch(engine); }

private:
    /// The second word of an id here is its service.
    kiv::embedded::EmbeddedService* serviceOf(const QString& id) const { return m_backend->service(id.section(':', 2, 2)); }

    kiv::embedded::EmbeddedBackend* m_backend;
    QmlWarnings m_warnings;
    std::unique_ptr<QTemporaryDir> m_root;
};

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        m_driver.reset();
        qmlRegisterType<InteractiveReport>("UiUtils.Test", 1, 0, "InteractiveReport");
        m_host = std::make_unique<uiutils::Host>();
        if (!m_host->start({{}, {}, {}, m_backend.serviceNames()}))
            qFatal("the services are not there");
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        m_driver.watch(engine);
        engine->rootContext()->setContextProperty("driver", &m_driver);
        m_host->showTo(engine);
    }
    /// Test cases take the warnings of their own tests; the others came between them.
    void cleanupTestCase()
    {
        const QStringList left = m_driver.takeWarnings();
        if (!left.isEmpty())
            qFatal("%s", qPrintable(left.join('\n')));
    }

private:
    kiv::embedded::EmbeddedBackend m_backend;
    Driver m_driver {&m_backend};
    std::unique_ptr<uiutils::Host> m_host;
};

QUICK_TEST_MAIN_WITH_SETUP(uiutils, Setup)
#include "tst_qml.moc"
