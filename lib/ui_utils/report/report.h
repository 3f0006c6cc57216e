#pragma once

#include "core/uiutils_export.h"
#include "document/reporttemplate.h"
#include "local/uidata.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <memory>

class KIVNotification;
class ReportItem;
class ReportMetadata;
class TemplateToHtmlWriter;
class TemplateToPdfWriter;

namespace uiutils {
class ReportHooks;
class ReportPrivate;
} // namespace uiutils

/// Makes reports of what a page has measured: holds the document and the user's settings, decides name, format and
/// folder, asks before it overwrites, writes the files, and notifies the user.
///
/// Applications derive from it: every virtual has a working default, and save() and the writers call back through them.
/// A derived controller builds the content in document(). For text and JSON its generators return the content, usually
/// from uiutils::reportText() and uiutils::reportJson().
///
/// Paths are the instrument's ("/cust/public/reports/otdr/a.pdf"). Setters emit their notifier when the value changes.
/// Everything runs on the GUI thread and blocks until the file is on the disk.
class UIUTILS_EXPORT Report : public QObject
{
    Q_OBJECT
    /// The JSON file of the document. A file that cannot be read changes nothing and emits nothing.
    Q_PROPERTY(QString templatePath READ getTemplatePath WRITE setTemplatePath NOTIFY templatePathChanged)
    /// The folder that contains the reports of the unit; ends in "/". Set it to "" for the unit's default.
    Q_PROPERTY(QString baseDirectory READ getBaseDirectory WRITE setBaseDirectory)
    /// The kind of test; the template's until one is set.
    Q_PROPERTY(QString tag READ getTag WRITE setTag NOTIFY tagChanged)
    /// The folder of these reports, which also names the file of the settings; the tag until one is set.
    Q_PROPERTY(QString folder READ getFolder WRITE setFolder NOTIFY folderChanged)
    /// Whether the report may be attached to a job now: allowed here or by the template, and a job is active.
    Q_PROPERTY(bool canWriteToJobManager READ getCanWriteToJobManager WRITE setCanWriteToJobManager NOTIFY
                    canWriteToJobManagerChanged)
    /// Whether the report may be saved as a file; what the template says until it is set.
    Q_PROPERTY(bool canWriteToFile READ getCanWriteToFile WRITE setCanWriteToFile NOTIFY canWriteToFileChanged)
    /// The folder into which the next save writes, as users read it.
    Q_PROPERTY(QString saveLocation READ getSaveLocation NOTIFY saveLocationChanged)
    /// The saved reports in the folder of the next save, newest first: maps of `name`, `path`, `format`, `size` in
    /// bytes, `time` and `compressed`. Read again when the folder has changed.
    Q_PROPERTY(QVariantList reportFiles READ getReportFiles NOTIFY reportFilesChanged)
    /// The XML report that this object saved last; empty before.
    Q_PROPERTY(QString lastSavedXML READ getLastSavedXML NOTIFY lastSavedXMLChanged)
    /// "portrait" or "landscape"; the template's until one is set, "portrait" if the template has none.
    Q_PROPERTY(QString orientation READ getOrientation WRITE setOrientation NOTIFY orientationChanged)
    /// What the report is called; the template's until one is set.
    Q_PROPERTY(QString title READ getTitle WRITE setTitle NOTIFY titleChanged)
    /// What the report is about, one line; the template's until one is set.
    Q_PROPERTY(QString subject READ getSubject WRITE setSubject NOTIFY subjectChanged)
    /// Whether the report shows the job.
    Q_PROPERTY(bool includeJobInfo READ getIncludeJobInfo WRITE setIncludeJobInfo NOTIFY includeJobInfoChanged)
    /// Whether the report shows the customer.
    Q_PROPERTY(bool includeCustomerInfo READ getIncludeCustomerInfo WRITE setIncludeCustomerInfo)
    /// Whether the report lists the revisions of the hardware.
    Q_PROPERTY(bool showHardwareRevs READ getShowHardwareRevs WRITE setShowHardwareRevs NOTIFY showHardwareRevsChanged)
    /// Whether the report lists the revisions of the software.
    Q_PROPERTY(bool showSoftwareRevs READ getShowSoftwareRevs WRITE setShowSoftwareRevs NOTIFY showSoftwareRevsChanged)
    /// The active job in one line; empty without one.
    Q_PROPERTY(QString jobSummary READ getJobSummary NOTIFY jobSummaryChanged)
    /// The XML schema that reports for jobs are checked against; empty for none.
    Q_PROPERTY(QString jobSchema READ getJobSchema WRITE setJobSchema NOTIFY jobSchemaChanged)
    /// What the user chooses, by name: "reportName", "reportFormat", "reportSync_SS" and those that derived controllers
    /// add.
    Q_PROPERTY(QVariantMap settings READ getSettings NOTIFY settingsChanged)
    /// Settings for a job, by name; the library has none.
    Q_PROPERTY(QVariantMap jobSettings READ getJobSettings)
    /// Whether there is any of `jobSettings`.
    Q_PROPERTY(bool hasJobSettings READ hasJobSettings)
    /// Whether the tray notifies the user of a saved report; true by default.
    Q_PROPERTY(bool notifiesTray READ getNotifiesTray WRITE setNotifiesTray)
    /// Screenshots that belong to the report.
    Q_PROPERTY(QStringList screenshotList READ getScreenshotList WRITE setScreenshotList NOTIFY screenshotListChanged)
    /// Whether a save is writing now.
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    /// How much of the running save is written, 0 to 1: a PDF page by page, all formats in equal shares.
    Q_PROPERTY(double progress READ getProgress NOTIFY progressChanged)
    /// Whether the tray has one notice for all files of a save, once the last of them is written, in place of one for
    /// each; false by default. With `notifiesTray` false there is none.
    Q_PROPERTY(bool notifiesOncePerSave READ getNotifiesOncePerSave WRITE setNotifiesOncePerSave)
    /// What fileNameProblem() says of the name in the settings; empty without a name: a save then proposes one.
    Q_PROPERTY(QString nameProblem READ getNameProblem NOTIFY problemsChanged)
    /// Why nothing can be saved in the format in the settings, in words; empty if it can.
    Q_PROPERTY(QString formatProblem READ getFormatProblem NOTIFY problemsChanged)

public:
    static const QString PDF_EXTENSION; ///< ".pdf"
    static const QString XML_EXTENSION; ///< ".xml"
    static const QString HTML_EXTENSION; ///< ".html"
    static const QString TXT_EXTENSION; ///< ".txt"
    static const QString JSON_EXTENSION; ///< ".json"
    static const QString SOR_EXTENSION; ///< ".sor"
    static const QString GZIP_EXTENSION; ///< ".gz"
    /// The items that the HTML pass collects and the page renderer prints. Each pass first deletes those of the pass
    /// before. What an application appends is printed too, stays in the list and remains the application's.
    static QList<ReportItem*>& m_reportItems;

    /// Makes the settings. They take the values of the settings file 100 ms later, after the page has set its folder.
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
    bool getNotifiesOncePerSave() const;
    QString getNameProblem();
    QString getFormatProblem() const;
    void setNotifiesOncePerSave(bool once);

    /// Whether save() handles events between pages and formats, so that its page can show the progress and call
    /// cancel(). While `saving` is true, the page has to keep users from everything else, as SaveProgress of
    /// UiUtils.Controls does, and must not be deleted. False by default; for controllers with such pages.
    bool isInteractive() const;
    void setInteractive(bool interactive);
    /// When the test ran, as the page set it.
    QString getTestTime() const;
    /// How long the test took, as the page set it.
    QString getTestDuration() const;
    /// Whether reports are saved as gzip files, with ".gz" after their suffix; false by default.
    bool isCompressionEnabled() const;
    void setCompressionEnabled(bool enabled);
    /// Replaces the file by its compressed form, which has ".gz" after its name, or the other way round. False, with a
    /// line in the log, if gzip fails.
    [[nodiscard]] bool compressFile(const QString& path);
    /// See compressFile().
    [[nodiscard]] bool uncompressFile(const QString& path);
    /// Copies the saved report durably to the USB drive, in place of one of its name. The user is told if that fails.
    void saveToUsb(const QString& name, const QString& suffix);
    /// An NSReport::ReportFormat; -1 if the item "reportFormat" does not exist or has no value.
    int getFormat() const;
    /// The suffix of the chosen format, with its dot; empty for ALL and without a format.
    QString getSuffixForReport() const;
    /// For a preview or paper: brings the document up to date, as a save does, and returns a writer of PDF pages with
    /// all switches. Its items come into `items`, see TemplateToPdfWriter. Null during a save, and if hasCustomPDF().
    std::unique_ptr<TemplateToPdfWriter> makePdfWriter(QList<ReportItem*>* items);
    /// The document that derived controllers build.
    ReportTemplate& document();
    /// The document that derived controllers have built.
    const ReportTemplate& document() const;

    // --- The order of these is part of the binary interface. ---

    /// Called by the page before save(): a derived controller prepares its data here.
    Q_INVOKABLE virtual void startPossibleSave();
    /// Saves the report as the settings say, and emits reportGenerated(). False if nothing or not everything was
    /// written: the user has been notified of the reason, has cancelled the save, or is asked whether to overwrite.
    /// After reportOverwriteAccepted() the page calls save(true), which writes where the files of the question lie. A
    /// question that is still open is withdrawn. In a slot of a signal that a save of the same controller emits before
    /// reportGenerated(), it returns false and does nothing.
    Q_INVOKABLE virtual bool save(bool overwrite = false);
    Q_INVOKABLE void setTestTime(const QString& testTime);
    Q_INVOKABLE void setTestDuration(const QString& testDuration);
    /// Whether the chosen format is PDF.
    Q_INVOKABLE bool isPDF() const;
    /// Whether the chosen format is XML.
    Q_INVOKABLE bool isXml() const;
    /// Whether the chosen format is HTML.
    Q_INVOKABLE bool isHtml() const;
    /// Whether the chosen format is plain text.
    Q_INVOKABLE bool isText() const;
    /// Whether the chosen format is JSON.
    Q_INVOKABLE bool isJson() const;
    /// Whether all applicable formats are chosen.
    Q_INVOKABLE bool isAll() const;
    /// The settings item of that name, which belongs to the controller; null if there is none.
    Q_INVOKABLE virtual KivData* getSetting(const QString& name);
    /// The same without creating anything.
    Q_INVOKABLE virtual KivData* getConstSetting(const QString& name) const;
    /// The name that is proposed to the user: the test's short label and the time.
    Q_INVOKABLE virtual QString proposedFileName();
    /// For controllers that propose a name of their own; the default does nothing.
    Q_INVOKABLE virtual void setCustomDefaultReportName(const QString& name);
    /// Why no report can be made now, for the user; empty if one can.
    Q_INVOKABLE virtual QString cannotGenerateReportMessage();
    /// The report's text; null, the default, means an empty file.
    Q_INVOKABLE virtual QString generateTxtReport();
    /// The report's JSON; null, the default, means a file of "{ }".
    Q_INVOKABLE virtual QString generateJsonReport();
    /// The document as XML.
    Q_INVOKABLE virtual QString generateXmlReport();
    /// The document as XML without versions and customer, as the job manager takes it.
    Q_INVOKABLE virtual QString generateJobManagerReport();
    /// The document as an HTML page.
    Q_INVOKABLE virtual QString generateHtmlReport();
    /// Whether generatePDFReport() makes pages of its own.
    Q_INVOKABLE virtual bool hasCustomPDF();
    /// The bytes of the PDF file; empty if it cannot be made.
    Q_INVOKABLE virtual QByteArray generatePDFReport();
    /// Writes generateTxtReport(); `path` includes the format's suffix. False if the file was not written; the user is
    /// asked or notified.
    [[nodiscard]] Q_INVOKABLE bool writeTxtReport(const QString& path, bool overwrite = false);
    /// Writes generateJsonReport(); see writeTxtReport().
    [[nodiscard]] Q_INVOKABLE virtual bool writeJsonReport(const QString& path, bool overwrite = false);
    /// Adds the report to the list of those that the cloud does not sync. If that fails, the user is notified.
    Q_INVOKABLE void addReportToNoSyncList(const QString& filePath);
    /// Replaces the list of reports that the cloud does not sync. If that fails, the user is notified.
    Q_INVOKABLE void writeNoSyncListToFile(const QStringList& noSync_fileList);
    /// Removes the report from the list of those that the cloud does not sync. If that fails, the user is notified.
    Q_INVOKABLE void removeReportFromNoSyncList(const QString& filePath);
    /// Writes generateHtmlReport(); see writeTxtReport().
    [[nodiscard]] Q_INVOKABLE bool writeHtmlReport(const QString& path, bool overwrite = false);
    /// Writes generateXmlReport(); see writeTxtReport().
    [[nodiscard]] Q_INVOKABLE virtual bool writeXmlReport(const QString& path, bool overwrite = false);
    /// Writes generatePDFReport(); see writeTxtReport().
    [[nodiscard]] Q_INVOKABLE bool writePDFReport(const QString& path, bool overwrite = false);
    /// Attaches the report to the active job. False if that is not possible; the user has been notified of the reason.
    Q_INVOKABLE bool writeToJobManager();
    /// How much of the file system at `path` is in use, 0 to 100.
    Q_INVOKABLE double percentageFileSystemUsed(const QString& path = QStringLiteral("/cust/public/reports/"));
    /// Opens a PDF report in the instrument's viewer; for "", the one saved or shown last. Ignores other files.
    Q_INVOKABLE void showPDF(const QString& path);
    /// The path of the one of `reportFiles` that has this name, with or without suffix; the newest of several. Empty if
    /// there is none.
    Q_INVOKABLE QString getOpenReportPath(const QString& nm);
    /// The unit's own folder of these reports; ends in "/".
    Q_INVOKABLE virtual QString getReportFilePath();
    /// The type of the test for the active job, as setCdmTestTypeAndLabel() has taken it.
    Q_INVOKABLE virtual QString getCdmTestType();
    /// The label of the test for the active job, as setCdmTestTypeAndLabel() has taken it.
    Q_INVOKABLE virtual QString getCdmTestLabel();
    /// Takes both from the base manager: "none" and "None" if it has none.
    Q_INVOKABLE virtual void setCdmTestTypeAndLabel();
    /// Ends the running save before the next page or format; what is written stays. The user is not notified.
    Q_INVOKABLE void cancel();
    /// Offers users CSV (NSReport::csvFormat) as well, a ".zip" file of all tables. To be called once, when the object
    /// is made: false, and nothing changes, after an earlier call, or if an application's format has the suffix.
    Q_INVOKABLE bool offerCsv(bool hasDecimalComma = false);
    /// What is wrong with a name, with both numbers if it is too long: by the item "reportName", the chosen formats and
    /// the rules of USB drives, to which a save need not write. Empty if nothing is.
    Q_INVOKABLE QString fileNameProblem(const QString& name);

    /// The path of a report `name` that is saved now, with `suffix` appended unless it ends so. Makes the folder.
    virtual QString getSaveFilePath(const QString& name, const QString& suffix);
    /// Writes a text as UTF-8, compressed if enabled, and notifies the user. `path` includes the suffix. If a file
    /// exists, compressed or not, nothing is written and the user is asked, unless `overwrite`.
    [[nodiscard]] virtual bool writeTextReport(
            const QString& path, const QString& text, const QString& suffix, bool overwrite);

protected:
    // Hooks: the defaults do nothing.
    /// The settings have taken the stored values: 100 ms after construction, and after the notifiers of a new folder.
    virtual void settingsLoaded();
    /// A save begins; the settings are stored, no file is written yet.
    virtual void saveStarted(const QString& name);
    /// The document is about to be written: bring it up to date.
    virtual void prepareDocument();
    /// A file has been written.
    virtual void reportWritten(const QString& path);
    /// The user is being asked whether `path` may be overwritten.
    virtual void overwriteAsked(const QString& path);
    /// The user has said no: `path` stays as it is.
    virtual void overwriteDeclined(const QString& path);
    /// A save has ended with everything written, the first file at `path`.
    virtual void saveSucceeded(const QString& path);
    /// A save has failed; `name` is the name that the report was to have.
    virtual void saveFailed(const QString& name);

    /// Called for each report of a save once it is safe: `format` is "PDF", "XML" and so on. The default writes its
    /// metadata record, with the work order and the job; if that fails, only the log has a line.
    virtual void writeMetadata(const QString& path, const QString& format);
    /// Whether the active job has an ID; checked before a report is attached to it or its record names it.
    virtual bool ensureValidJobData();
    /// Adds the data of the job and of the test to metadata(): "jobId", "testType", "testLabel".
    virtual void updateJobTestMetadata();
    /// Whether the platform shall keep the report's name for the next report; true by default.
    virtual bool keepsReportName();

    /// The record of the report that was saved last, or is being saved.
    ReportMetadata& metadata();
    /// Adds "wo" and "workflowId" of the work order that is active in this session to metadata().
    void addWorkOrderMetaDataInfo();

    /// Adds an item, which must have a name, a type and a label among its attributes, to the settings, which then own
    /// it. The value that it holds when control returns to the event loop, or at a load before that, is its initial
    /// value; any other value counts as set by somebody.
    void addSetting(UiData* item);
    /// Sets which formats the user can choose; PDF and XML by default.
    void setFormatApplicable(int format, bool applicable);
    /// Has the settings take the values that are stored for the folder, if these are allowed.
    void loadSettings();
    /// Stores the settings for the folder. Before these are loaded, one with its initial value replaces no stored one.
    void saveSettings();
    /// The files that this object has saved and that the cloud syncs: each path once, in the list of its last save.
    QStringList syncedReports() const;
    /// The files that this object has saved and that the cloud does not sync; see syncedReports().
    QStringList unsyncedReports() const;
    /// The pages as the library prints them; empty if that fails.
    QByteArray generateDefaultPDFReport();
    /// Sets a switch of the HTML writer and of the pages for all later saves; it overrides those of this object.
    void setWriterAttribute(const QString& name, const QVariant& value);
    /// Passes the switches of this object, those of setWriterAttribute() and its defaultBodyAttributes() to a writer.
    void setHtmlWriterAttributes(TemplateToHtmlWriter& writer) const;
    /// True if the report may be written; otherwise the user is asked.
    [[nodiscard]] bool checkForOverwrite(const QString& name, const QString& suffix, bool overwrite);
    /// Adds a format of the application's own; to be called in the constructor. `value`, at least
    /// NSReport::firstOwnFormat, is what "reportFormat" holds and stores, the same in every controller of the process;
    /// `label` is what users read; `suffix` ends the names of files, as ".csv" does. A save in it, or in ALL, calls
    /// `generate`; empty contents are an error, of which the user is notified. False, and nothing is added, if value or
    /// suffix are another format's, if the suffix has no dot in front, ends in ".gz" or has "/", or without `generate`.
    bool addFormat(int value, const QString& label, const QString& suffix, const std::function<QByteArray()>& generate);

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

    /// The user has agreed that the pending report is overwritten.
    void reportOverwriteAccepted();
    /// A save has succeeded; emitted once per save. `filename` is the file's name without its folder, with its suffix
    /// and ".gz" if it has one; for all formats it is the name that the files share.
    void reportGenerated(const QString& filename);
    void savingChanged();
    void progressChanged();
    void problemsChanged();

public Q_SLOTS:
    /// A watched service item, the sender, has changed.
    void slotValueChanged();
    /// Loads the stored values of the settings.
    void slotCreateSettings();
    /// Receives the answers of all dialogs; only the one to the pending question of this object counts.
    void overwriteAccepted(KIVNotification* notification);
    /// See overwriteAccepted().
    void overwriteRejected(KIVNotification* notification);

private:
    friend class uiutils::ReportHooks;
    friend class uiutils::ReportPrivate;

    const std::unique_ptr<uiutils::ReportPrivate> d;
};
