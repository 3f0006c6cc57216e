#pragma once

#include "columns.h"
#include "filesizelimit.h"
#include "files.h"
#include "signallog.h"

#include "report/report.h"
#include "report/reportnaming_p.h"
#include "report/reportsettingsstore_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <functional>
#include <memory>
#include <sys/mount.h>
#include <sys/stat.h>

inline const QString activeItem(":result:basemgr:jobmanager:isJobActive:");
inline const QString locationItem(":config:basemgr:system:saveLocation:");
inline const QString usbItem(":result:basemgr:system:usbAttached:");

inline KIVNotificationModelManager* manager()
{
    return KIVNotificationModelManager::instance();
}

/// Title and text of the open dialog.
inline QString dialogTitle()
{
    return manager()->currentDialog() ? manager()->currentDialog()->longLabel() : QString();
}
inline QString dialogText()
{
    return manager()->currentDialog() ? manager()->currentDialog()->msg() : QString();
}

/// JSON text with ' in place of ".
inline QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

/// A derived controller that logs its calls.
class Controller : public Report
{
public:
    explicit Controller(const QString& name = QString(), int format = 0)
    {
        if (!name.isNull())
            setUp(name, format);
    }
    QString generateTxtReport() override { return made(text); }
    QString generateJsonReport() override { return json; }
    bool writeXmlReport(const QString& path, bool overwrite) override
    {
        calls << "writeXml";
        return Report::writeXmlReport(path, overwrite);
    }
    bool writeTextReport(const QString& path, const QString& contents, const QString& suffix, bool overwrite) override
    {
        calls << "writeText" + suffix;
        return Report::writeTextReport(path, contents, suffix, overwrite);
    }
    QByteArray generatePDFReport() override { return made(pages); }
    QString proposedFileName() override { return proposed; }

    void setUp(const QString& name, int format)
    {
        for (int value = 0; value <= 5; ++value)
            setFormatApplicable(value, true);
        getSetting("reportName")->setValue(name);
        getSetting("reportFormat")->setValue(format);
    }
    /// Saves again when the user agrees to the replacement.
    void saveOnYes()
    {
        connect(this, &Report::reportOverwriteAccepted, this, [this] { answers << save(true); });
    }
    using Report::addFormat;
    using Report::addSetting;
    using Report::loadSettings;
    using Report::saveSettings;
    using Report::setFormatApplicable;

    QString text;
    QString json;
    QString proposed = "proposed";
    QByteArray pages = "%PDF-";
    QStringList calls;
    QVector<bool> answers;
    /// Called while contents are made, and when a save has succeeded.
    std::function<void()> meanwhile;
    bool keepsName = true;

protected:
    bool keepsReportName() override { return keepsName; }
    void saveStarted(const QString&) override { calls << "started"; }
    void prepareDocument() override { calls << "prepare"; }
    void reportWritten(const QString&) override { calls << "written"; }
    void writeMetadata(const QString& path, const QString& format) override
    {
        calls << "metadata " + format;
        Report::writeMetadata(path, format);
    }
    void saveSucceeded(const QString&) override { made(calls << "succeeded"); }
    void saveFailed(const QString&) override { calls << "failed"; }
    void overwriteDeclined(const QString&) override { calls << "declined"; }

private:
    /// The controller may have been deleted afterwards.
    template<typename Contents>
    Contents made(Contents contents)
    {
        if (const auto act = meanwhile)
            act();
        return contents;
    }
};

/// A new instrument with a base manager for each test.
class ReportFixture : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    QString onDisk(const QString& path) const { return m_root->path() + path; }
    QStringList names(const QString& folder) const { return namesIn(onDisk(folder)); }
    QString listFile() const { return onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"); }
    kiv::embedded::EmbeddedService* basemgr() const { return m_backend->service("basemgr"); }
    /// Where reports are saved, and whether a USB drive is reported and exists.
    void plug(int location, bool isAnnounced = true, bool isMounted = true)
    {
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        QVERIFY(basemgr()->setValue(locationItem, location) && basemgr()->setValue(usbItem, isAnnounced));
        QVERIFY(basemgr()->setMounted("/mnt/usb", isMounted));
    }
    void writeTemplate(const QString& name, const QByteArray& fields)
    {
        writeFile(onDisk("/cust/" + name), json("{'node_type': 'report', 'tag': 'otdr'" + fields + "}"));
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root->path()));
        qunsetenv("PLOV_SHORTLABEL");
        qunsetenv("PLOV_PROVIDER");
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        KIVBackend::setCurrent(m_backend.get());
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
    }
    void cleanup()
    {
        manager()->clear();
        while (manager()->currentDialog())
            delete manager()->currentDialog();
        m_backend.reset();
    }
};
