#include "columns.h"
#include "files.h"

#include "base/paths_p.h"
#include "usbstick.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/filesystemusage.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <memory>

using namespace uiutils;
using uiutils::demo::UsbStick;

namespace {

const QString attachedId = QStringLiteral(":result:basemgr:system:usbAttached:");

} // namespace

class UsbStickTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        m_services = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QVERIFY(m_services->loadFile(UIUTILS_SOURCE_DIR "/platform/reference/services/basemgr.service.json"));
    }
    void cleanup()
    {
        KIVNotificationModelManager* const notifications = KIVNotificationModelManager::instance();
        while (notifications->currentDialog())
            notifications->reject();
        m_services.reset();
    }

    void plugAndPull()
    {
        UsbStick stick;
        QVERIFY(stick.isSupported());
        checkAgreement(stick, false);
        QSignalSpy changes(&stick, &UsbStick::attachedChanged);
        QSignalSpy noticed(baseManager()->item(attachedId), &KIVClientItem::valueChanged);

        QVERIFY(stick.plug());
        QVERIFY(stick.plug());
        checkAgreement(stick, true);
        put("/mnt/usb/reports/a.txt", "on the stick");
        QVERIFY(stick.pull());
        QVERIFY(stick.pull());
        checkAgreement(stick, false);
        QVERIFY(!exists("/mnt/usb/reports/a.txt"));
        // The unit's own folder under the mount.
        QVERIFY(exists("/mnt/usb"));

        QVERIFY(stick.plug());
        QCOMPARE(contents("/mnt/usb/reports/a.txt"), QByteArray("on the stick"));
        QCOMPARE(changes.size(), 3);
        QCOMPARE(noticed.size(), 3);
    }

    void yanked()
    {
        UsbStick stick;
        QVERIFY(stick.plug());
        put("/mnt/usb/a.txt", "on the stick");
        QVERIFY(stick.yank());
        QVERIFY(!stick.isAttached());
        QVERIFY(!FileSystemUsage::isMounted("/mnt/usb/"));
        QVERIFY(isNoticed());
        QVERIFY(!exists("/mnt/usb/a.txt"));
        QVERIFY(stick.pull());
        checkAgreement(stick, false);
        QVERIFY(stick.plug());
        QVERIFY(exists("/mnt/usb/a.txt"));
    }

    void startUp_data()
    {
        addColumns<QStringList, QString, bool>();
        const QStringList in {"mnt/usb/a.txt"};
        const QStringList out {"stick/a.txt"};
        const QStringList strayed {"stick/a.txt", "mnt/usb/stray.txt"};
        QTest::newRow("for the first time") << QStringList() << "" << false;
        QTest::newRow("mounted by a service") << QStringList() << "mounted" << true;
        QTest::newRow("attached says a service") << QStringList() << "attached" << true;
        QTest::newRow("was in") << in << "" << true;
        QTest::newRow("was out") << out << "" << false;
        QTest::newRow("was out, mounted by a service") << out << "mounted" << false;
        QTest::newRow("was out, attached says a service") << out << "attached" << false;
        QTest::newRow("was out, with a stray file") << strayed << "" << false;
    }
    void startUp()
    {
        const auto [files, service, isIn] = currentRow<QStringList, QString, bool>();
        for (const QString& file : files)
            put('/' + file, "x");
        if (service == "attached")
            QVERIFY(baseManager()->setValue(attachedId, true));
        kiv::embedded::ServiceDescription other;
        other.service = "other";
        if (service == "mounted")
            other.mounted = QStringList {"/mnt/usb"};
        QVERIFY(m_services->publish(other));

        for (int run = 0; run < 2; ++run) {
            const UsbStick stick;
            checkAgreement(stick, isIn);
            for (const QString& file : files)
                QVERIFY2(QFile::exists(m_root->filePath(file)), qPrintable(file));
        }
        QVERIFY(UsbStick().plug() != files.contains("mnt/usb/stray.txt"));
    }

    /// Something was written to the mount point while the drive was unplugged; neither that nor the drive's own files
    /// may be lost.
    void strayFilesStayWhereTheyAre()
    {
        UsbStick stick;
        QVERIFY(stick.plug());
        put("/mnt/usb/a.txt", "on the stick");
        QVERIFY(stick.pull());
        put("/mnt/usb/a.txt", "astray");
        const KIVNotificationModelManager* const notifications = KIVNotificationModelManager::instance();
        for (int attempt = 0; attempt < 2; ++attempt) {
            QVERIFY(!stick.plug());
            checkAgreement(stick, false);
            QVERIFY(notifications->currentDialog());
            QCOMPARE(notifications->currentDialog()->kind(), KIVNotification::Error);
            QVERIFY(notifications->currentDialog()->msg().contains(m_root->filePath("mnt/usb")));
        }
        QCOMPARE(notifications->waitingDialogs(), 0);
        QCOMPARE(contents("/mnt/usb/a.txt"), QByteArray("astray"));

        QVERIFY(QFile::remove(m_root->filePath("mnt/usb/a.txt")));
        QVERIFY(stick.plug());
        QCOMPARE(contents("/mnt/usb/a.txt"), QByteArray("on the stick"));
    }

    void cannotBeMoved()
    {
        UsbStick stick;
        put("/mnt", "a file");
        QVERIFY(!stick.plug());
        checkAgreement(stick, false);
        QVERIFY(QFile::remove(m_root->filePath("mnt")));
        QVERIFY(stick.plug());
        put("/stick", "a file");
        QVERIFY(!stick.pull());
        checkAgreement(stick, true);
    }

    /// The demo must not touch what is really mounted on this machine.
    void onlyWithARootAndABaseManager()
    {
        qunsetenv("UIUTILS_ROOT");
        QVERIFY(!UsbStick().isSupported());
        QVERIFY(!UsbStick().plug());
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        QVERIFY(m_services->withdraw("basemgr"));
        QVERIFY(!UsbStick().plug());
        m_services.reset();
        QVERIFY(!UsbStick().plug());
        QVERIFY(QDir(m_root->path()).isEmpty());
    }

private:
    kiv::embedded::EmbeddedService* baseManager() const { return m_services->service("basemgr"); }
    bool isNoticed() const { return baseManager()->item(attachedId)->getValue().toBool(); }

    void checkAgreement(const UsbStick& stick, bool isIn) const
    {
        QCOMPARE(stick.isAttached(), isIn);
        QCOMPARE(FileSystemUsage::isMounted("/mnt/usb/"), isIn);
        QCOMPARE(isNoticed(), isIn);
        QCOMPARE(QFile::exists(m_root->filePath("stick")) && !QFileInfo(m_root->filePath("stick")).isFile(), !isIn);
    }

    /// Paths of the instrument, and of the root folder.
    QString place(const QString& path) const { return m_root->path() + path; }
    bool exists(const QString& path) const { return QFile::exists(place(path)); }
    QByteArray contents(const QString& path) const { return contentsOf(place(path)); }
    void put(const QString& path, const QByteArray& text) const { writeFile(place(path), text); }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_services;
};

QTEST_GUILESS_MAIN(UsbStickTest)
#include "tst_usbstick.moc"
