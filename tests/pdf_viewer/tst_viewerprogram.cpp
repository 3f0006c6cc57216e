#include "columns.h"
#include "viewersamples.h"

#include <csignal>

/// The program as it is started.
class ViewerProgramTest : public QObject
{
    Q_OBJECT

private:
    void start(const QStringList& arguments, const QByteArray& platform, const QByteArray& language = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        environment.insert("LANGUAGE", language);
        if (!platform.isEmpty())
            environment.insert("QT_QPA_PLATFORM", platform);
        m_viewer.setProcessEnvironment(environment);
        m_viewer.start(UIUTILS_VIEWER_PROGRAM, arguments);
    }

    QProcess m_viewer;
    QTemporaryDir m_folder;

private Q_SLOTS:
    void cleanup()
    {
        m_viewer.kill();
        m_viewer.waitForFinished();
    }

    void endings_data()
    {
        addColumns<QStringList, int, QString, QByteArray>();
        const QString german = QString::fromUtf8(u8"Es gibt keine Anzeige für a.pdf.");
        QTest::newRow("help") << QStringList {"--help"} << 0 << "--dpy" << QByteArray();
        QTest::newRow("wrong command line") << QStringList {"--dpy", "0", "a.pdf"} << 2 << "--dpy needs a number" << QByteArray();
        QTest::newRow("no such language") << QStringList {"--language", "xx", "a.pdf"} << 1 << "There is no language \"xx\"." << QByteArray();
        QTest::newRow("in German") << QStringList {"--language", "de", "a.pdf"} << 1 << german << QByteArray("fr");
        QTest::newRow("in the language of the environment") << QStringList {"a.pdf"} << 1 << german << QByteArray("de:fr");
        QTest::newRow("nobody could see it") << QStringList {"a.pdf"} << 1 << "There is no display to show a.pdf on." << QByteArray();
    }
    void endings()
    {
        const auto [arguments, exitCode, words, language] = currentRow<QStringList, int, QString, QByteArray>();
        start(arguments, {}, language);
        QVERIFY(m_viewer.waitForFinished());
        QCOMPARE(m_viewer.exitCode(), exitCode);
        const QString told = QString::fromUtf8(m_viewer.exitCode() == 0 ? m_viewer.readAllStandardOutput() : m_viewer.readAllStandardError());
        QVERIFY2(told.contains(words), qPrintable(told));
    }

    /// A plug-in for a missing device is ignored silently.
    void staysUntilItIsClosed()
    {
        const QString file = writeFile(m_folder.filePath("a.pdf"), samples::barred(1));
        start({"-plugin", "EvdevTouch:/dev/input/event-none", "--dpy", "85", "-s", file, "-t", "View Report"}, "offscreen");
        QVERIFY(!m_viewer.waitForFinished(2000));
        m_viewer.terminate();
        QVERIFY(m_viewer.waitForFinished());
        QCOMPARE(m_viewer.exitCode(), SIGTERM);
        QCOMPARE(QString(m_viewer.readAllStandardError()), QString());
    }
};

QTEST_GUILESS_MAIN(ViewerProgramTest)
#include "tst_viewerprogram.moc"
