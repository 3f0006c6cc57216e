#include "common/instrument.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

#include <memory>

/// The service's side, for the pages under test.
class Driver : public QObject
{
    Q_OBJECT

public:
    explicit Driver(kiv::embedded::EmbeddedBackend* backend)
        : m_backend(backend)
    {
    }

    /// The service as its file says.
    Q_INVOKABLE void reset()
    {
        m_backend->withdraw("field");
        QString problem;
        if (!m_backend->loadFile(UIUTILS_SOURCE_DIR "/tests/qml/services/field.service.json", &problem))
            qFatal("%s", qPrintable(problem));
    }
    Q_INVOKABLE void report(const QString& id, const QVariant& value) { service()->setValue(id, value); }
    Q_INVOKABLE QVariant value(const QString& id) const { return service()->item(id)->getValue(); }
    Q_INVOKABLE void setReady(const QString& id, bool isReady) { service()->setReady(id, isReady); }
    Q_INVOKABLE void setReachable(bool isReachable) { service()->setReachable(isReachable); }
    Q_INVOKABLE void reportError(const QString& text) { service()->reportError(text); }

private:
    kiv::embedded::EmbeddedService* service() const { return m_backend->service("field"); }

    kiv::embedded::EmbeddedBackend* m_backend;
};

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        m_driver.reset();
        m_instrument = std::make_unique<uiutils::apps::Instrument>(m_backend);
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->rootContext()->setContextProperty("driver", &m_driver);
        m_instrument->showTo(engine);
    }

private:
    kiv::embedded::EmbeddedBackend m_backend;
    Driver m_driver {&m_backend};
    std::unique_ptr<uiutils::apps::Instrument> m_instrument;
};

QUICK_TEST_MAIN_WITH_SETUP(uiutils, Setup)
#include "tst_qml.moc"
