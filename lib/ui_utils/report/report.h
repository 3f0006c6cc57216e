#pragma once

#include "core/uiutils_export.h"
#include "document/reporttemplate.h"
#include "local/uidata.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <memory>

class KIVNotification;
class ReportItem;
class ReportMetadata;
class TemplateToHtmlWriter;

namespace uiutils {
class ReportHooks;
class ReportPrivate;
} // namespace uiutils

/// Makes reports of what a page has measured: holds the document and the user's settings, decides name, format and
/// folder, asks before it overwrites, writes, and tells the user.
///
/// Applications derive from it: every virtual has a working default, and save() and the writers call back through them.
/// A derived controller builds the content in document() and, for text and JSON, returns it from its generators, with
/// uiutils::reportText() and uiutils::reportJson() as a rule.
///
/// Paths are the instrument's ("/cust/public/reports/otdr/a.pdf"). Setters emit their notifier when the value changes.
/// Everything runs on the thread of the screens and blocks until the file is on the disk.
class UIUTILS_EXPORT Report : public QObject
{
    Q_OBJECT
    /// The JSON file of the document. One that cannot be read changes nothing and emits nothing.
    Q_PROPERTY(QString templatePath READ getTemplatePath WRITE setTemplatePath NOTIFY templatePathChanged)
    /// The folder below which the reports of the unit lie; ends in "/". Empty stands for the unit's own.
    Q_PROPERTY(QString baseDirectory READ getBaseDirectory WRITE setBaseDirectory)
    /// The kind of test; the template's while none is set.
    Q_PROPERTY(QString tag READ getTag WRITE setTag NOTIFY tagChanged)
    /// The folder of these reports, which also names the file of the settings; the tag while none is set.
    Q_PROPERTY(QString folder READ getFolder WRITE setFolder NOTIFY folderChanged)
    /// Whether the report may be attached to a job now: allowed here or by the template, and a job is active.
    Q_PROPERTY(bool canWriteToJobManager READ getCanWriteToJobManager WRITE setCanWriteToJobManager NOTIFY
                    canWriteToJobManagerChanged)
    /// Whether the report may be saved as a file; the template's answer while none is set.
    Q_PROPERTY(bool canWriteToFile READ getCanWriteToFile WRITE setCanWriteToFile NOTIFY canWriteToFileChanged)
    /// The folder into which the next save goes, as users read it.
    Q_PROPERTY(QString saveLocation READ getSaveLocation NOTIFY saveLocationChanged)
    /// The saved reports where the next save goes, a folder of the unit or the stick, newest first: maps of `name`,
    /// `path`, `format`, `size` in bytes, `time` and `compressed`. Read again when the folder has changed.
    Q_PROPERTY(QVariantList reportFiles READ getReportFiles NOTIFY reportFilesChanged)
    /// The XML report that this object saved last; empty before.
    Q_PROPERTY(QString lastSavedXML READ getLastSavedXML NOTIFY lastSavedXMLChanged)
    /// "portrait" or "landscape"; the template's while none is set, "portrait" when that says nothing either.
    Q_PROPERTY(QString orientation READ getOrientation WRITE setOrientation NOTIFY orientationChanged)
    /// The template's while none is set.
    Q_PROPERTY(QString title READ getTitle WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString subject READ getSubject WRITE setSubject NOTIFY subjectChanged)
    /// What the report shows beside the document.
    Q_PROPERTY(bool includeJobInfo READ getIncludeJobInfo WRITE setIncludeJobInfo NOTIFY includeJobInfoChanged)
    Q_PROPERTY(bool includeCustomerInfo READ getIncludeCustomerInfo WRITE setIncludeCustomerInfo)
    Q_PROPERTY(bool showHardwareRevs READ getShowHardwareRevs WRITE setShowHardwareRevs NOTIFY showHardwareRevsChanged)
    Q_PROPERTY(bool showSoftwareRevs READ getShowSoftwareRevs WRITE setShowSoftwareRevs NOTIFY showSoftwareRevsChanged)
    /// The active job in one line; empty without one.
    Q_PROPERTY(QString jobSummary READ getJobSummary NOTIFY jobSummaryChanged)
    /// The XML schema that reports for jobs are checked against; empty for none.
    Q_PROPERTY(QString jobSchema READ getJobSchema WRITE setJobSchema NOTIFY jobSchemaChanged)
    /// What the user chooses, by name: "reportName", "reportFormat", "reportSync_SS" and what derived controllers add.
    Q_PROPERTY(QVariantMap settings READ getSettings NOTIFY settingsChanged)
    /// What the user chooses for a job.
    Q_PROPERTY(QVariantMap jobSettings READ getJobSettings)
    Q_PROPERTY(bool hasJobSettings READ hasJobSettings)
    /// Whether a saved report is told in the tray; true at first.
    Q_PROPERTY(bool notifiesTray READ getNotifiesTray WRITE setNotifiesTray)
    /// Pictures of the screen that belong to the report.
    Q_PROPERTY(QStringList screenshotList READ getScreenshotList WRITE setScreenshotList NOTIFY screenshotListChanged)
    /// Whether a save writes now, and how much of it is written, 0 to 1: a PDF page by page, all formats in equal
    /// shares.
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    Q_PROPERTY(double progress READ getProgress NOTIFY progressChanged)

public:
    static const QString PDF_EXTENSION;
    static const QString XML_EXTENSION;
    static const QString HTML_EXTENSION;
    static const QString TXT_EXTENSION;
    static const QString JSON_EXTENSION;
    static const QString SOR_EXTENSION;
    static const QString GZIP_EXTENSION;
    /// The items that the HTML pass collects and the page renderer prints. Each pass first deletes those of the last
    /// one. What an application appends is printed too, stays and remains its own.
    static QList<ReportItem*>& m_reportItems;

    /// Makes the settings. They take the values of the settings file 100 ms later, when the page has set its folder.
    explicit Report(QObject* parent = nullptr);
    ~Report() override;

    QString getTemplatePath() const;
    void setTemplatePath(const QString& path);
    QString getBaseDirectory() const;
    void setBaseDirectory(const QString& directory);
    QString getTag() const;
    void setTag(const QString& tag);
    QString getFolder() const;
    void setFolder(const QString& folder);
    bool getCanWriteToJobManager() const;
    void setCanWriteToJobManager(bool allowed);
    bool getCanWriteToFile() const;
    void setCanWriteToFile(bool allowed);
    QString getSaveLocation();
    QVariantList getReportFiles();
    QString getLastSavedXML() const;
    QString getOrientation() const;
    void setOrientation(const QString& orientation);
    QString getTitle() const;
    void setTitle(const QString& title);
    QString getSubject() const;
    void setSubject(const QString& subject);
    bool getIncludeJobInfo() const;
    void setIncludeJobInfo(bool include);
    bool getIncludeCustomerInfo() const;
    void setIncludeCustomerInfo(bool include);
    bool getShowHardwareRevs() const;
    void setShowHardwareRevs(bool show);
    bool getShowSoftwareRevs() const;
    void setShowSoftwareRevs(bool show);
    QString getJobSummary() const;
    QString getJobSchema() const;
    void setJobSchema(const QString& schema);
    QVariantMap getSettings() const;
    QVariantMap getJobSettings() const;
    bool hasJobSettings() const;
    bool getNotifiesTray() const;
    void setNotifiesTray(bool notifies);
    QStringList getScreenshotList() const;
    void setScreenshotList(const QStringList& screenshots);
    bool isSaving() const;
    double getProgress() const;

    /// Whether the page lives on while a report is saved: save() then handles events between pages and formats, so that
    /// the page can show the progress and call cancel(). It has to keep users from everything else for as long as
    /// `saving` is true, as SaveProgress of UiUtils.Controls does, and must not go itself. False at first. For derived
    /// controllers, whose pages are made for it.
    bool isInteractive() const;
    void setInteractive(bool interactive);

    QString getTestTime() const;
    QString getTestDuration() const;

    /// Whether reports are saved as gzip files, with ".gz" behind their suffix; false at first.
    bool isCompressionEnabled() const;
    void setCompressionEnabled(bool enabled);

    /// Replaces the file by its compressed form with ".gz" behind its name, or back. False with a line in the log when
    /// gzip fails.
    bool compressFile(const QString& path);
    bool uncompressFile(const QString& path);

    /// Copies the saved report to the stick, durably, over one of its name; tells the user when that fails.
    void saveToUsb(const QString& name, const QString& suffix);

    /// An NSReport::ReportFormat; -1 without the item "reportFormat" or its value.
    int getFormat() const;
    /// The suffix of the chosen format with its dot; empty for ALL and without a format.
    QString getSuffixForReport() const;

    /// What derived controllers build the content in.
    ReportTemplate& document();
    const ReportTemplate& document() const;

    // --- The order of these is part of the binary interface. ---

    /// A derived controller gets its data ready here before the page calls save().
    Q_INVOKABLE virtual void startPossibleSave();
    /// Saves the report as the settings say, and emits reportGenerated(). False when nothing or not everything was
    /// written: the user has been told why, has cancelled it, or is being asked whether to overwrite; after
    /// reportOverwriteAccepted() the page calls save(true), which goes where the question was about. A question that is
    /// still open is taken back. False without more from a slot of what a save of the same controller emits before
    /// reportGenerated().
    Q_INVOKABLE virtual bool save(bool overwrite = false);
    Q_INVOKABLE void setTestTime(const QString& testTime);
    Q_INVOKABLE void setTestDuration(const QString& testDuration);
    Q_INVOKABLE bool isPDF() const;
    Q_INVOKABLE bool isXml() const;
    Q_INVOKABLE bool isHtml() const;
    Q_INVOKABLE bool isText() const;
    Q_INVOKABLE bool isJson() const;
    Q_INVOKABLE bool isAll() const;
    /// The settings item of that name, which belongs to the controller; null without one.
    Q_INVOKABLE virtual KivData* getSetting(const QString& name);
    Q_INVOKABLE virtual KivData* getConstSetting(const QString& name) const;
    /// The name that is offered to the user: the test's short label and the time.
    Q_INVOKABLE virtual QString proposedFileName();
    Q_INVOKABLE virtual void setCustomDefaultReportName(const QString& name);
    /// Why no report can be made now, in words for the user; empty when one can.
    Q_INVOKABLE virtual QString cannotGenerateReportMessage();
    /// The report's text. Null, the default, stands for none: an empty text file, a JSON file of "{ }".
    Q_INVOKABLE virtual QString generateTxtReport();
    Q_INVOKABLE virtual QString generateJsonReport();
    /// The document in these forms.
    Q_INVOKABLE virtual QString generateXmlReport();
    Q_INVOKABLE virtual QString generateJobManagerReport();
    Q_INVOKABLE virtual QString generateHtmlReport();
    /// Whether generatePDFReport() makes pages of its own.
    Q_INVOKABLE virtual bool hasCustomPDF();
    /// The bytes of the PDF file; empty when it cannot be made.
    Q_INVOKABLE virtual QByteArray generatePDFReport();
    /// Writers: `path` with the format's suffix on it. False when it was not written; the user is asked or told.
    Q_INVOKABLE bool writeTxtReport(const QString& path, bool overwrite = false);
    Q_INVOKABLE virtual bool writeJsonReport(const QString& path, bool overwrite = false);
    /// The reports that the cloud leaves alone.
    Q_INVOKABLE void addReportToNoSyncList(const QString& filePath);
    Q_INVOKABLE void writeNoSyncListToFile(const QStringList& noSync_fileList);
    Q_INVOKABLE void removeReportFromNoSyncList(const QString& filePath);
    Q_INVOKABLE bool writeHtmlReport(const QString& path, bool overwrite = false);
    Q_INVOKABLE virtual bool writeXmlReport(const QString& path, bool overwrite = false);
    Q_INVOKABLE bool writePDFReport(const QString& path, bool overwrite = false);
    /// Attaches the report to the active job. False when that is not possible; the user has been told why.
    Q_INVOKABLE bool writeToJobManager();
    /// How much of the file system at `path` is in use, 0 to 100.
    Q_INVOKABLE double percentageFileSystemUsed(const QString& path = QStringLiteral("/cust/public/reports/"));
    /// Opens a PDF report in the instrument's viewer, the one saved or shown last for an empty path; nothing happens
    /// for other files.
    Q_INVOKABLE void showPDF(const QString& path);
    /// The file of one of `reportFiles`, given its name with or without suffix, the newest of several; empty without
    /// one.
    Q_INVOKABLE QString getOpenReportPath(const QString& nm);
    /// The unit's own folder of these reports; ends in "/".
    Q_INVOKABLE virtual QString getReportFilePath();
    Q_INVOKABLE virtual QString getCdmTestType();
    Q_INVOKABLE virtual QString getCdmTestLabel();
    /// Takes both from the base manager: "none" and "None" when it says nothing.
    Q_INVOKABLE virtual void setCdmTestTypeAndLabel();
    /// Ends the save that is running before the next page or format. What is written by then stays; the user, who wants
    /// it so, is told nothing.
    Q_INVOKABLE void cancel();

    /// Where the report `name` goes now, with `suffix` behind it unless it ends so. Makes the folder.
    virtual QString getSaveFilePath(const QString& name, const QString& suffix);
    /// Writes a text as UTF-8, compressed if enabled, and tells the user. `path` has the suffix on it. A file that
    /// exists, compressed or not, is not written but asked for, unless `overwrite`.
    virtual bool writeTextReport(const QString& path, const QString& text, const QString& suffix, bool overwrite);

protected:
    // Hooks: the defaults do nothing.
    /// The settings have taken the values that are stored for the folder: 100 ms after construction, and whenever
    /// another folder has brought its own, then behind the notifiers of the setter.
    virtual void settingsLoaded();
    /// A save begins; the settings are stored, nothing is written.
    virtual void saveStarted(const QString& name);
    /// The document will be written next: bring it up to date.
    virtual void prepareDocument();
    /// A file has been written.
    virtual void reportWritten(const QString& path);
    /// The user is being asked whether `path` may be overwritten, or has said no.
    virtual void overwriteAsked(const QString& path);
    virtual void overwriteDeclined(const QString& path);
    /// A save ended with everything written, the first file at `path`, or without: `name` as it was to be.
    virtual void saveSucceeded(const QString& path);
    virtual void saveFailed(const QString& name);

    /// Called for each report that a save has written, once it is safe: `format` is "PDF", "XML" and so on. The default
    /// writes its metadata record, which tells of the work order and of the job. A record that cannot be written is
    /// told to the log alone.
    virtual void writeMetadata(const QString& path, const QString& format);
    /// Whether what the active job needs is there, its ID; asked before a report is attached to it or tells of it.
    virtual bool ensureValidJobData();
    /// Adds what the job manager and the test say to metadata(): "jobId", "testType", "testLabel".
    virtual void updateJobTestMetadata();
    /// Whether the platform shall keep the report's name as that of the next one; true.
    virtual bool keepsReportName();

    /// The record of the report that was saved last, or is being saved.
    ReportMetadata& metadata();
    /// Adds "wo" and "workflowId" of the work order that is active in this session to metadata().
    void addWorkOrderMetaDataInfo();

    /// Adds an item with name, type and label among its attributes to the settings, which own it from then on. The
    /// value that it holds when control is back in the event loop, or at the first load before, is the one that it
    /// starts with; any other was set by somebody.
    void addSetting(UiData* item);
    /// Says which formats the user can choose; at first PDF and XML.
    void setFormatApplicable(int format, bool applicable);
    /// Has the settings take the values that are stored for the folder, where they are allowed.
    void loadSettings();
    /// Stores the settings for the folder. Until they have been loaded, those that still have the value they came with
    /// leave what is stored as it is.
    void saveSettings();
    /// The files that this object has saved, as the user wanted them synced or not: each path once, where it was saved
    /// last.
    QStringList syncedReports() const;
    QStringList unsyncedReports() const;
    /// The pages as the library prints them; empty when that fails.
    QByteArray generateDefaultPDFReport();
    /// Sets a switch of the HTML writer and of the pages for all saves to come; it wins over those of this object.
    void setWriterAttribute(const QString& name, const QVariant& value);
    /// Hands the switches of this object on to a writer, and those of setWriterAttribute().
    void setHtmlWriterAttributes(TemplateToHtmlWriter& writer) const;
    /// True when the report may be written; otherwise the user is being asked.
    bool checkForOverwrite(const QString& name, const QString& suffix, bool overwrite);

Q_SIGNALS:
    void templatePathChanged();
    void tagChanged();
    void folderChanged();
    void canWriteToJobManagerChanged();
    void canWriteToFileChanged();
    void saveLocationChanged();
    void reportFilesChanged();
    void lastSavedXMLChanged();
    void orientationChanged();
    void titleChanged();
    void subjectChanged();
    void includeJobInfoChanged();
    void showHardwareRevsChanged();
    void showSoftwareRevsChanged();
    void jobSummaryChanged();
    void jobSchemaChanged();
    void settingsChanged();
    void screenshotListChanged();

    /// The user lets the pending report be overwritten.
    void reportOverwriteAccepted();
    /// A save has succeeded; comes once for each: `filename` is the file's name without its folder, with its suffix and
    /// ".gz" if it has one, or for all formats the name that the files have in common.
    void reportGenerated(const QString& filename);

    void savingChanged();
    void progressChanged();

public Q_SLOTS:
    /// A service item that is watched has changed; for the sender's signal.
    void slotValueChanged();
    /// Takes the stored values.
    void slotCreateSettings();
    /// The answers of all dialogs come in here; only that to the pending question of this object counts.
    void overwriteAccepted(KIVNotification* notification);
    void overwriteRejected(KIVNotification* notification);

private:
    friend class uiutils::ReportHooks;
    friend class uiutils::ReportPrivate;

    const std::unique_ptr<uiutils::ReportPrivate> d;
};
