#include "reportfixture.h"

#include "report/nsreport.h"
#include "report/pagereport.h"
#include "report/reportpreview.h"

class TestPageReport : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    /// What a page builds when it is asked is in every file, and it is asked once for all of them.
    void savesWhatThePageBuilds()
    {
        uiutils::PageReport report;
        int asked = 0;
        connect(&report, &uiutils::PageReport::contentWanted, this, [&] { build(report.content(), QString("loss %1").arg(++asked)); });
        report.setFolder("cable");
        report.getSetting("reportName")->setValue("a");
        report.getSetting("reportFormat")->setValue(NSReport::REPORT_FORMAT_ALL);
        QVERIFY(report.save());
        QCOMPARE(asked, 1);
        QCOMPARE(names("/cust/public/reports/cable"), QStringList({"a.html", "a.json", "a.pdf", "a.txt", "a.xml"}));
        for (const char* name : {"a.html", "a.json", "a.txt", "a.xml"})
            QVERIFY2(contentsOf(onDisk(QString("/cust/public/reports/cable/") + name)).contains("loss 1"), name);
        QVERIFY(contentsOf(onDisk("/cust/public/reports/cable/a.html")).startsWith("<!DOCTYPE html>"));

        QVERIFY(report.save(true));
        QCOMPARE(asked, 2);
        QVERIFY(contentsOf(onDisk("/cust/public/reports/cable/a.txt")).contains("loss 2"));
    }

    /// A file without a name from the user can be told from those of other pages.
    void proposesNames()
    {
        uiutils::PageReport report;
        report.setFolder("cables/coaxial/");
        QVERIFY(report.proposedFileName().startsWith("coaxial_"));
        qputenv("PLOV_SHORTLABEL", "CX");
        QVERIFY(report.proposedFileName().startsWith("CX_"));
    }

    /// The preview shows what a save would write now.
    void previewsWhatThePageBuilds()
    {
        uiutils::PageReport report;
        connect(&report, &uiutils::PageReport::contentWanted, this, [&] { build(report.content(), "loss"); });
        uiutils::ReportPreview preview;
        preview.setReport(&report);
        preview.show();
        QTRY_COMPARE(preview.pageCount(), 1);
        QVERIFY(report.content()->toJson().contains("loss"));
    }

    /// A page may close itself, and its report with it, when it is asked.
    void mayBeDeletedWhenAsked()
    {
        auto report = std::make_unique<uiutils::PageReport>();
        connect(report.get(), &uiutils::PageReport::contentWanted, this, [&] { report.reset(); });
        report->getSetting("reportName")->setValue("a");
        QVERIFY(!report->save());
        QVERIFY(!report);
    }

private:
    static void build(ReportTemplate* content, const QString& value)
    {
        content->beginReport("cable");
        content->beginTable("results", "Results");
        content->addRow("loss", "Loss", value, {});
        content->endTable();
        content->endReport();
    }
};

QTEST_MAIN(TestPageReport)
#include "tst_pagereport.moc"
