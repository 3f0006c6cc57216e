#include "files.h"

#include "report/saving/consent_p.h"
#include "report/saving/saveplan_p.h"

#include <QtTest>

using uiutils::Consent;
using uiutils::ReportDestinations;

/// What a save determines before it writes: as values, without a controller.
class SavePlanTest : public QObject
{
    Q_OBJECT

    static uiutils::FormatInfos formats(const QVector<int>& values)
    {
        uiutils::FormatInfos list;
        for (int value : values)
            list += uiutils::formatInfo(value);
        return list;
    }

private Q_SLOTS:
    void filesAndCopies()
    {
        int calls = 0;
        const auto inFolder = [&calls](const QString& folder) {
            return [&calls, folder](const QString& name, const QString& suffix) { return ++calls, folder + name + suffix; };
        };
        uiutils::SavePlan plan;
        plan.files = uiutils::plannedFiles("a", formats({0, 3}), true, inFolder("/cust/public/reports/f/"));
        // The folder is requested once for each file, however often its path is needed.
        QCOMPARE(plan.paths(false), QStringList({"/cust/public/reports/f/a.pdf", "/cust/public/reports/f/a.txt"}));
        QCOMPARE(plan.paths(true).join(' '),
                QString("/cust/public/reports/f/a.pdf /mnt/usb/a.pdf /cust/public/reports/f/a.txt /mnt/usb/a.txt"));
        QCOMPARE(calls, 2);
        for (const auto& [copies, folder] : {std::pair(false, "/cust/"), std::pair(true, "/mnt/usb/"), std::pair(true, "/mnt//usb/")}) {
            plan.files = uiutils::plannedFiles("a", formats({1}), copies, inFolder(folder));
            QCOMPARE(plan.paths(true), QStringList(QString(folder) + "a.xml"));
        }
    }

    void whatCannotBeSaved()
    {
        const QString none("No format is chosen to save the report in.");
        uiutils::FormatChoice choice;
        QCOMPARE(uiutils::planProblem("a", choice, false), none);
        choice = {"5", true, true, {}};
        QCOMPARE(uiutils::planProblem("a", choice, false), none);
        choice = {"word", false, false, {}};
        QCOMPARE(uiutils::planProblem("a", choice, false), QString("There is no format \"word\" to save the report in."));
        // 251 letters and ".xml" are 255 bytes; ".json" and ".gz" are more.
        choice = {"5", true, true, formats({1})};
        const QString longest(251, 'x');
        QVERIFY(uiutils::planProblem(longest, choice, false).isEmpty() && !uiutils::planProblem(longest, choice, true).isEmpty());
        choice.formats = formats({1, 4});
        QVERIFY(!uiutils::planProblem(longest, choice, false).isEmpty() && uiutils::planProblem("a", choice, true).isEmpty());
    }

    void consent()
    {
        const ReportDestinations there{uiutils::SaveOnUsb, true};
        Consent consent;
        const auto saves = [&consent](bool overwrite, const QStringList& paths) {
            consent.begin(overwrite);
            consent.lookAt(paths);
            return consent.unasked(paths);
        };
        // Nobody has agreed to anything; a caller who overwrites agrees to what the save has looked at.
        QCOMPARE(saves(false, {"a", "b"}), QStringList({"a", "b"}));
        QVERIFY(saves(true, {"a", "b"}).isEmpty() && consent.allows("a") && !consent.allows("c") && !consent.destinations());
        consent.end();
        QVERIFY(!consent.allows("a"));
        // A yes covers the files of the question and those looked at with them, at their paths, and one save.
        saves(false, {"a", "b"});
        consent.ask(there, {"late"});
        consent.end();
        QVERIFY(!consent.allows("a"));
        consent.agree();
        QCOMPARE(saves(true, {"a", "b", "late", "other"}), QStringList("other"));
        QCOMPARE(consent.destinations()->location, int(uiutils::SaveOnUsb));
        QVERIFY(saves(true, {"other"}).isEmpty() && !consent.destinations());
        // A save that does not overwrite was not started by the yes, and cancels it.
        consent.ask(there, {"a"});
        consent.agree();
        QCOMPARE(saves(false, {"a"}), QStringList("a"));
        QVERIFY(saves(true, {"a"}).isEmpty() && !consent.destinations());
        // Nor was one that comes after a writer that was called directly has used it.
        consent.ask(there, {"a"});
        consent.agree();
        consent.takeUp("b");
        consent.takeUp("a");
        QVERIFY(saves(true, {"c"}).isEmpty());
    }

    void whatIsTaken()
    {
        QTemporaryDir root;
        qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
        writeFile(root.filePath("cust/a.txt.gz"), "");
        QVERIFY(QFile::link("/nowhere", root.filePath("cust/link")));
        QCOMPARE(uiutils::firstTaken({"/cust/x", "/cust/a.txt", "/cust/link"}, true), QString("/cust/a.txt"));
        QCOMPARE(uiutils::firstTaken({"/cust/x", "/cust/a.txt", "/cust/link"}, false), QString("/cust/link"));
        QVERIFY(uiutils::firstTaken({"/cust/x", "/cust/a.txt"}, false).isEmpty());
    }
};

QTEST_GUILESS_MAIN(SavePlanTest)

#include "tst_saveplan.moc"
