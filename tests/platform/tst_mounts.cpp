#include <kiv/filesystemusage.h>
#include <kiv/kivbackend.h>
#include <kiv/mounttable_p.h>

#include <QtTest>

namespace {

const QByteArray table = "22 28 0:20 / /sys rw,nosuid shared:7 - sysfs sysfs rw\n"
                         "97 28 8:17 / /mnt/usb rw,relatime shared:53 master:2 - vfat /dev/sdb1 rw\n"
                         "98 28 8:18 / /mnt/my\\040stick\\134x rw - vfat /dev/sdb2 rw\n"
                         "99 28 0:44 / /mnt/waiting rw shared:9 - autofs systemd-1 rw\n"
                         "99 28 0:45 / /mnt/woken rw shared:9 - autofs systemd-1 rw\n"
                         "100 28 8:19 / /mnt/woken rw - vfat /dev/sdc1 rw\n"
                         "101 28 8:20 /mnt/other /mnt/bound rw - ext4 /mnt/device rw\n"
                         "torn line\n";

/// A back end without services, which leaves mounts to the system.
class SilentBackend final : public KIVBackend
{
public:
    KIVClientInterface* baseManagerClient() override { return nullptr; }
    KIVClientInterface* serviceClient(const QString&, QObject*) override { return nullptr; }
};

} // namespace

class MountsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableOfMounts()
    {
        // The second is escaped in the table, the third mounted on demand, the last bound.
        for (const char* path : {"/mnt/usb", "/mnt/my stick\\x", "/mnt/woken", "/mnt/bound"})
            QVERIFY2(kiv::listsMount(table, path), path);
        // The escaped form, above and below a mount, not yet mounted on demand, the root of the bound one, a device.
        for (const char* path : {"/mnt/my\\040stick\\134x", "/mnt", "/mnt/usb/reports", "", "/mnt/waiting",
                     "/mnt/other", "/mnt/device"})
            QVERIFY2(!kiv::listsMount(table, path), path);
    }

    void theSystemAnswersForBackEndsThatDoNot()
    {
        QFile mounts("/proc/self/mountinfo");
        if (!mounts.open(QIODevice::ReadOnly))
            QSKIP("This machine does not tell what is mounted.");
        // That of a chroot may have no line of its own.
        const bool isRootListed = kiv::listsMount(mounts.readAll(), "/");
        QTemporaryDir dir;
        const QString link = dir.filePath("link");
        QVERIFY(QFile::link("/proc", link));
        SilentBackend backend;
        for (KIVBackend* current : {static_cast<KIVBackend*>(nullptr), static_cast<KIVBackend*>(&backend)}) {
            KIVBackend::setCurrent(current);
            QVERIFY(FileSystemUsage::isMounted("/proc"));
            QVERIFY(FileSystemUsage::isMounted("/proc/"));
            QVERIFY(FileSystemUsage::isMounted(link));
            QCOMPARE(FileSystemUsage::isMounted("/"), isRootListed);
            QVERIFY(!FileSystemUsage::isMounted(dir.path()));
            QVERIFY(!FileSystemUsage::isMounted(dir.filePath("missing")));
            QVERIFY(!FileSystemUsage::isMounted("proc"));
        }
    }
};

QTEST_GUILESS_MAIN(MountsTest)
#include "tst_mounts.moc"
