#include "filesizelimit.h"
#include "files.h"

#include <QtTest>

#include "instrument/job_p.h"
#include "instrument/people_p.h"
#include "instrument/unit_p.h"
#include "report/saving/gzip_p.h"
#include "report/jobreport_p.h"
#include "report/nsreport.h"
#include "report/saving/reportfilewriter_p.h"
#include "report/reportlisting_p.h"
#include "report/saving/savednotice_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace instrument = uiutils::instrument;

namespace {

constexpr int large = 100'000;

QByteArray noise(int size)
{
    QRandomGenerator random(7);
    QByteArray bytes(size, 0);
    std::generate(bytes.begin(), bytes.end(), [&] { return char(random.bounded(256)); });
    return bytes;
}

/// Gives the process a folder with this shell script as gzip and no other program, or an empty one.
class OtherGzip
{
public:
    explicit OtherGzip(const QByteArray& script)
    {
        const QString path = m_folder.filePath("gzip");
        if (!script.isEmpty())
            writeFile(path, "#!/bin/sh\n" + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_folder.path()));
    }
    ~OtherGzip() { qputenv("PATH", m_before); }
    Q_DISABLE_COPY_MOVE(OtherGzip)

private:
    QTemporaryDir m_folder;
    QByteArray m_before = qgetenv("PATH");
};

/// The clock from which files take their times.
std::optional<timespec> clockTime;

} // namespace

/// Replaces the C library's function.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock != CLOCK_REALTIME_COARSE || !clockTime)
        return int(::syscall(SYS_clock_gettime, clock, time));
    *time = *clockTime;
    return 0;
}

class ReportPartsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;

    QString onDisk(const QString& path) const { return m_root->path() + path; }
    QStringList names() const { return namesIn(onDisk("/cust/public/reports")); }
    QByteArray unpacked(const QString& path) const
    {
        QProcess gzip;
        gzip.start("gzip", {"-dc", onDisk(path)});
        return gzip.waitForFinished() && gzip.exitCode() == 0 ? gzip.readAll() : QByteArray("<no gzip file>");
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root->path()));
        QVERIFY(QDir().mkpath(onDisk("/cust/public/reports")) && QDir::setCurrent(onDisk("/cust/public/reports")));
    }
    void cleanup() { QDir::setCurrent("/"); }

    void placesOnEarth()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinite = std::numeric_limits<double>::infinity();
        for (const auto& [latitude, longitude] : {std::pair(-90.0, 180.0), std::pair(0.0, 9.5), std::pair(51.5, 0.0)})
            QVERIFY(NSReport::isGeoLocationValid(latitude, longitude));
        for (const auto& [latitude, longitude] : {std::pair(0.0, -0.0), std::pair(90.001, 0.0), std::pair(0.0, -180.001),
                     std::pair(nan, 10.0), std::pair(10.0, -infinite)})
            QVERIFY(!NSReport::isGeoLocationValid(latitude, longitude));
    }
    void timeZones()
    {
        const QDateTime noon(QDate(2025, 7, 1), QTime(12, 0), Qt::OffsetFromUTC, 3600);
        QVector<std::pair<const char*, int>> rows{{"Europe/Oslo", 120}, {"+02:00", 120}, {"-0330", -210}, {"+14", 840}, {"UTC", 0}};
        for (const char* unknown : {"", "Europe/Nowhere", "+14:01", "+02:60", "+2", "../../etc/passwd", "+02:00\n"})
            rows += {unknown, 60};
        for (const auto& [zone, minutes] : qAsConst(rows)) {
            const QDateTime adjusted = NSReport::adjustDateTimeToTimeZone(noon, zone);
            QCOMPARE(adjusted, noon);
            QCOMPARE(adjusted.offsetFromUtc() / 60, minutes);
            QVERIFY(!NSReport::adjustDateTimeToTimeZone(QDateTime(), zone).isValid());
        }
    }

    void packsUnusualNames()
    {
        for (const char* text : {"two words.txt", "a\"; touch hacked; \".txt", "$(touch hacked).txt", "`touch hacked`.txt",
                     "${HOME}.txt", "at the end\\", "a'b.txt", "-d.txt", "--help", "line\nfeed.txt", "; touch hacked",
                     "Größe 光纤.txt", "!!*?~&|<>.txt"}) {
            const QString name = QString::fromUtf8(text);
            for (const QString& path : {"/cust/public/reports/" + name, name}) {
                writeFile(name, "contents");
                QVERIFY(uiutils::compressFile(path));
                QCOMPARE(names(), QStringList(name + ".gz"));
                QVERIFY(uiutils::uncompressFile(path + ".gz"));
                QCOMPARE(names(), QStringList(name));
                QCOMPARE(contentsOf(onDisk("/cust/public/reports/" + name)), QByteArray("contents"));
            }
            QVERIFY(QFile::remove(name));
        }
    }

    void gzipIsCalledAsAgreed()
    {
        const OtherGzip gzip("printf '%s|' \"$@\" > arguments");
        QVERIFY(uiutils::compressFile("/cust/public/reports/a b.txt"));
        QCOMPARE(contentsOf("arguments"), QFile::encodeName("-f|" + onDisk("/cust/public/reports/a b.txt|")));
    }

    void reportsWhatCannotBePacked()
    {
        const QString report("/cust/public/reports/a.txt");
        const std::pair<QString, const char*> rows[]{{report, ""}, {report, "exit 2"}, {report, "kill -9 $$"},
                {report + QChar(QChar::Null) + "b", "exit 0"}};
        for (const auto& [path, gzip] : rows) {
            writeFile("a.txt", "contents");
            const OtherGzip other(gzip);
            QTest::ignoreMessage(QtDebugMsg, qPrintable("Couldn't compress " + path));
            QVERIFY(!uiutils::compressFile(path));
            QTest::ignoreMessage(QtDebugMsg, "Couldn't uncompress /cust/public/reports/b.gz");
            QVERIFY(!uiutils::uncompressFile("/cust/public/reports/b.gz"));
            QCOMPARE(names(), QStringList("a.txt"));
        }
    }

    void aHostMayIgnoreItsChildren()
    {
        writeFile("a.txt", "contents");
        const auto before = ::signal(SIGCHLD, SIG_IGN);
        const bool isPacked = uiutils::compressFile("/cust/public/reports/a.txt");
        QTest::ignoreMessage(QtDebugMsg, "Couldn't compress /cust/public/reports/missing");
        const bool isMissingPacked = uiutils::compressFile("/cust/public/reports/missing");
        QVERIFY(::signal(SIGCHLD, before) == SIG_IGN);
        QVERIFY(isPacked);
        QVERIFY(!isMissingPacked);
        QCOMPARE(names(), QStringList("a.txt.gz"));
    }

    void writesReports()
    {
        const std::pair<QString, QByteArray> rows[]{{"Größe $(1).txt", QByteArray("Loss 0.25 dB\n").repeated(1000)},
                {"-f.txt", ""}, {QString(248, 'x') + ".txt", noise(large)}};
        for (const auto& [name, contents] : rows) {
            const QString path = "/cust/public/reports/" + name;
            QVERIFY(uiutils::writeReportFile(path, "another form", false).ok);
            writeFile("elsewhere", "kept");
            QVERIFY(QFile::link("elsewhere", name + ".gz"));

            const uiutils::WrittenFile packed = uiutils::writeReportFile(path, contents, true);
            QVERIFY2(packed.ok, qPrintable(packed.error));
            QCOMPARE(packed.path, path + ".gz");
            QVERIFY(!QFileInfo(name + ".gz").isSymLink());
            QCOMPARE(unpacked(path + ".gz"), contents);
            // Unpackers use the name that gzip has stored after its ten bytes of header.
            QCOMPARE(QFile::decodeName(contentsOf(name + ".gz").mid(10).constData()), name);
            QCOMPARE(contentsOf(name) + contentsOf("elsewhere"), QByteArray("another formkept"));

            const uiutils::WrittenFile plain = uiutils::writeReportFile(path, contents, false);
            QVERIFY(plain.ok && plain.path == path && plain.error.isEmpty());
            QCOMPARE(contentsOf(name), contents);
            QVERIFY(names().size() == 3 && QFile::remove(name) && QFile::remove(name + ".gz"));
        }
    }

    void aReportThatCannotBePackedIsNotLost()
    {
        const QString path("/cust/public/reports/a.txt");
        for (const char* gzip : {"", "echo half > \"$2.gz\"\nexit 1", "printf '\\037\\213half of what it should have' > \"$2.gz\"", "exit 0"}) {
            QVERIFY(uiutils::writeReportFile(path, "old", true).ok);
            {
                const OtherGzip other(gzip);
                const uiutils::WrittenFile file = uiutils::writeReportFile(path, "new", true);
                QVERIFY(!file.ok);
                QCOMPARE(file.path, path);
                QCOMPARE(file.error, QString("Cannot compress %1: gzip is missing or has failed").arg(path));
            }
            QCOMPARE(names(), QStringList({"a.txt", "a.txt.gz"}));
            QCOMPARE(contentsOf("a.txt"), QByteArray("new"));
            QCOMPARE(unpacked(path + ".gz"), QByteArray("old"));
        }
    }

    void aFileSizeLimitLeavesWhatWasThere()
    {
        const QString path("/cust/public/reports/a.txt");
        const QByteArray contents = noise(large);
        // Plain, to be packed, and without space for the packed one: what cannot be compressed grows.
        for (const auto& [compressed, room, left] : {std::tuple(false, large / 2, QByteArray("old")),
                     std::tuple(true, large / 2, QByteArray("old")), std::tuple(true, large, contents)}) {
            QVERIFY(uiutils::writeReportFile(path, "old", false).ok);
            QVERIFY(uiutils::writeReportFile(path, "old", true).ok);
            uiutils::WrittenFile file;
            {
                const FileSizeLimit limit {rlim_t(room)};
                file = uiutils::writeReportFile(path, contents, compressed);
            }
            QVERIFY(!file.ok && !file.error.isEmpty());
            // A file that does not fit even unpacked is not passed to gzip.
            QCOMPARE(file.error.contains("gzip"), left == contents);
            QVERIFY(contentsOf("a.txt") == left);
            QCOMPARE(file.path, left == contents ? path : QString());
            QCOMPARE(unpacked(path + ".gz"), QByteArray("old"));
            QCOMPARE(names(), QStringList({"a.txt", "a.txt.gz"}));
        }
    }

    void badTargets()
    {
        const QString nul {QChar(QChar::Null)};
        QVERIFY(QDir().mkpath("folder.txt/full") && QDir().mkpath("folder.txt.gz/full"));
        for (const QString& name : {QString("none/a.txt"), QString("folder.txt"), "a.txt" + nul + "b", "new" + nul + "/a.txt"}) {
            for (const bool compressed : {false, true}) {
                const uiutils::WrittenFile file = uiutils::writeReportFile("/cust/public/reports/" + name, "contents", compressed);
                QVERIFY(!file.ok && file.path.isEmpty());
                QVERIFY(!file.error.isEmpty() && !file.error.contains(nul));
                QCOMPARE(names(), QStringList({"folder.txt", "folder.txt.gz"}));
            }
        }
        QVERIFY(!uiutils::writeReportFile("", "contents", false).ok);
    }

    void listsReports()
    {
        const QDateTime noon(QDate(2025, 7, 1), QTime(12, 0));
        const auto add = [&](const QString& name, int minutes, int size) {
            writeFile(name, QByteArray(size, 'x'));
            QFile file(name);
            QVERIFY(file.open(QIODevice::Append));
            QVERIFY(file.setFileTime(noon.addSecs(60 * minutes), QFileDevice::FileModificationTime));
        };
        add("old.pdf", 1, 10);
        add("new.v2.html.gz", 3, 20);
        add("b.json", 2, 0);
        add("B.xml", 2, 1);
        add("a.b.txt", 2, 1);
        add("a.txt", 2, 1);
        add("a.pdf.gz", 2, 1);
        // Users may give a report that name, and would miss it.
        add(".hidden.pdf", 0, 1);
        for (const char* other : {"._b.json", ".uiutils-1.tmp", ".pdf", ".pdf.gz", "a.gz", "a.sor", "pdf", "a.pdf.gz.tmp"})
            add(other, 4, 1);
        QVERIFY(QDir().mkpath("folder.pdf") && QFile::link("nowhere", "dangling.pdf"));
        QVERIFY(QFile::link("folder.pdf", "linkedfolder.pdf") && QFile::link("old.pdf", "linked.pdf"));
        QCOMPARE(::mkfifo("pipe.pdf", 0600), 0);
        add("folder.pdf/inside.pdf", 4, 1);

        for (const QString& folder : {QString("/cust/public/reports"), QString("/cust/public/reports/")}) {
            QStringList lines;
            const QVariantList files = uiutils::reportFiles(uiutils::savedReports(folder));
            for (const QVariant& file : files) {
                const QVariantMap map = file.toMap();
                lines += QStringList({map["name"].toString(), map["path"].toString(), map["format"].toString(),
                        map["size"].toString(), QString::number(noon.secsTo(map["time"].toDateTime()) / 60),
                        map["compressed"].toString()}).join(' ');
            }
            QCOMPARE(lines, QStringList({"new.v2 /cust/public/reports/new.v2.html.gz HTML 20 3 true",
                                    "B /cust/public/reports/B.xml XML 1 2 false",
                                    "a /cust/public/reports/a.pdf.gz PDF 1 2 true",
                                    "a /cust/public/reports/a.txt TEXT 1 2 false",
                                    "a.b /cust/public/reports/a.b.txt TEXT 1 2 false",
                                    "b /cust/public/reports/b.json JSON 0 2 false",
                                    "linked /cust/public/reports/linked.pdf PDF 10 1 false",
                                    "old /cust/public/reports/old.pdf PDF 10 1 false",
                                    ".hidden /cust/public/reports/.hidden.pdf PDF 1 0 false"}));
        }
        for (const QString& none : {QString(), QString("/cust/none"), QString("/cust/public/reports/a.txt")})
            QVERIFY(uiutils::savedReports(none).isEmpty());
    }

    /// The folder's modification time decides; a file that grows in place does not change it.
    void aFolderIsReadAgainWhenItHasChanged()
    {
        const QString folder("/cust/public/reports/");
        auto sizes = [&, listing = uiutils::ReportListing()](const QString& from) mutable {
            QStringList found;
            const QVariantList files = listing.files(from);
            for (const QVariant& file : files)
                found += file.toMap()["size"].toString();
            return found.join(' ');
        };
        const auto grow = [](const char* name) {
            QFile file(name);
            return file.open(QIODevice::Append) && file.write("x") == 1;
        };
        const auto setTime = [&](const timespec& time) {
            const timespec times[]{time, time};
            return ::utimensat(AT_FDCWD, QFile::encodeName(onDisk(folder)).constData(), times, 0) == 0;
        };
        writeFile("a.pdf", "1");
        for (const auto& [changed, read, isSure] : {std::tuple(timespec{1000, 7}, timespec{1000, 8}, true),
                     std::tuple(timespec{1001, 7}, timespec{1001, 7}, false), std::tuple(timespec{1002, 0}, timespec{1003, 9}, false),
                     std::tuple(timespec{1003, 0}, timespec{1006, 9}, true), std::tuple(timespec{1007, 8}, timespec{1004, 9}, true)}) {
            QVERIFY(setTime(changed));
            clockTime = read;
            const QString before = sizes(folder);
            QVERIFY(grow("a.pdf"));
            QCOMPARE(sizes(folder) == before, isSure);
            // Another folder is independent.
            QCOMPARE(sizes("/cust/public/"), QString());
            QVERIFY(sizes(folder) != before);
        }
        // A report that may still be growing: 2 s old, in the future, and older.
        for (const auto& [written, isKept] : {std::pair(2000, false), std::pair(2004, false), std::pair(1999, true)}) {
            const timespec times[]{{written, 0}, {written, 0}};
            QVERIFY(setTime({1008, 7}) && ::utimensat(AT_FDCWD, "a.pdf", times, 0) == 0);
            clockTime = timespec{2002, 0};
            QCOMPARE(sizes("/cust/public/"), QString());
            const QString before = sizes(folder);
            QVERIFY(grow("a.pdf"));
            QCOMPARE(sizes(folder) == before, isKept);
        }
        writeFile("b.pdf", "12");
        QCOMPARE(sizes(folder).split(' ').size(), 2);
        QVERIFY(QFile::remove("b.pdf"));
        QCOMPARE(sizes(folder), QString("9"));
        // The root of a USB drive has no such time.
        QVERIFY(QDir().mkpath(onDisk("/mnt")) && QFile::rename(onDisk("/cust/public/reports"), onDisk("/mnt/usb")));
        kiv::embedded::EmbeddedBackend backend;
        KIVBackend::setCurrent(&backend);
        QVERIFY(backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
        QVERIFY(backend.service("basemgr")->setMounted("/mnt/usb", true));
        QCOMPARE(sizes("/mnt/usb/"), QString("9"));
        QVERIFY(QDir::setCurrent(onDisk("/mnt/usb")) && grow("a.pdf"));
        QCOMPARE(sizes("/mnt/usb/"), QString("10"));
        QVERIFY(backend.service("basemgr")->setMounted("/mnt/usb", false));
        QCOMPARE(sizes("/mnt/usb/"), QString());
        clockTime.reset();
    }

    void describesTheJob()
    {
        QCOMPARE(instrument::jobSummary(), QString());
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(!instrument::isJobActive());
        QVERIFY(backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
        kiv::embedded::EmbeddedService* service = backend.service("basemgr");
        QVERIFY(instrument::isJobActive());
        QCOMPARE(instrument::jobSummary(), QString("ID: WO-88213, Tech: Ines Halvorsen, BAN: 700 118 245"));
        service->setValue(":result:basemgr:jobmanager:jobTechnician:", " ");
        service->setValue(":result:basemgr:jobmanager:jobBAN:", "7\n%1");
        QCOMPARE(instrument::jobSummary(), QString("ID: WO-88213, BAN: 7 %1"));
        service->setValue(":result:basemgr:jobmanager:isJobActive:", false);
        QVERIFY(!instrument::isJobActive());
        QCOMPARE(instrument::jobSummary(), QString());
    }

    void namesPeopleAndUnit()
    {
        kiv::embedded::EmbeddedBackend backend;
        QCOMPARE(instrument::technicianName() + instrument::unitId(), QString());
        QVERIFY(backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
        QCOMPARE(instrument::technicianName() + ", " + instrument::unitId(), QString("Ines Halvorsen, WB20417733"));
        const QStringList fields {"userInfo_lastName"};
        backend.service("basemgr")->setValue(":config:basemgr:system:techFieldsIncludedInReport:stringARRAY:", fields);
        QCOMPARE(instrument::technicianName(), QString("Halvorsen"));
    }

    void attachesReports()
    {
        const QString fits = QString::fromUtf8("<report>Größe</report>");
        const std::tuple<bool, QString, QString, QString> rows[]{{true, "", "<anything/>", ""},
                {true, "/cust/job.xsd", fits, ""},
                {true, "/cust/job.xsd", "<other/>", "The report does not match the job schema: line 1: .*other.*"},
                {true, "/cust/job.xsd", "", "The report does not match the job schema: .+"},
                {true, "/cust/none.xsd", fits, "The schema /cust/none\\.xsd cannot be used: .+"},
                {true, "", "refuse", "The job has rejected the report: Job %1 is closed"},
                {false, "/cust/none.xsd", fits, "There is no active job"}};
        writeFile(onDisk("/cust/job.xsd"),
                "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='report' type='xs:string'/>"
                "</xs:schema>");
        QVERIFY(!uiutils::attachToJob("<report/>", QString(), nullptr));
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
        // As in the service file.
        QVERIFY(uiutils::attachToJob("<report/>", QString(), nullptr));
        kiv::embedded::EmbeddedService* service = backend.service("basemgr");
        QStringList taken;
        QVERIFY(service->setActionHandler(":action:basemgr:jobmanager:attachReport:",
                [&](const QString& argument, QString* error) {
                    *error = "Job %1 is closed";
                    return argument != "refuse" && (taken += argument, true);
                }));
        for (const auto& [isJobActive, schema, xml, reason] : rows) {
            service->setValue(":result:basemgr:jobmanager:isJobActive:", isJobActive);
            QString found("stale");
            taken.clear();
            QCOMPARE(uiutils::attachToJob(xml.toUtf8(), schema, &found), reason.isEmpty());
            QVERIFY2(QRegularExpression("\\A(?s:" + reason + ")\\z").match(found).hasMatch(), qPrintable(found));
            QCOMPARE(taken, reason.isEmpty() ? QStringList(xml) : QStringList());
        }
    }

    void savedMessages()
    {
        const std::pair<const char*, const char*> rows[]{
                {"/cust/public/reports/otdr/Fiber.7.pdf", "Report Fiber.7 saved\nFolder: reports/otdr"},
                {"/cust/public/reports/a.txt.gz", "Report a saved\nFolder: reports"},
                {"/mnt/usb/otdr/a.html", "Report a saved\nFolder: USB"},
                {"/mnt/usb2/a.html", "Report a saved\nFolder: /mnt/usb2"}, {"/cust/public/a.xml", "Report a saved\nFolder: "},
                {"/cust/private//a.xml", "Report a saved\nFolder: /cust/private"},
                {"/cust/public/%1/%2.xml", "Report %2 saved\nFolder: %1"}};
        for (const auto& [path, text] : rows)
            QCOMPARE(uiutils::savedMessage(path), QString(text));
    }
};

QTEST_GUILESS_MAIN(ReportPartsTest)
#include "tst_reportparts.moc"
