#pragma once

#include "loopbackmeasurement.h"
#include "report/report.h"

#include <QPointer>
#include <QStringList>

namespace uiutils::demo {

/// Saves the report of a loopback measurement, in any format.
///
/// Beside the settings of every report there are "reportTitle", the title on the report, and "reportCompression",
/// whether the files are compressed.
class LoopbackReport : public Report
{
    Q_OBJECT
    /// What is reported on; stays the caller's. The end of a run gives the report a new name.
    Q_PROPERTY(uiutils::demo::LoopbackMeasurement* measurement READ measurement WRITE setMeasurement NOTIFY
                    measurementChanged)
    /// The document that the next save writes.
    Q_PROPERTY(ReportTemplate* content READ content CONSTANT)

public:
    static const QString titleSetting;
    static const QString compressionSetting;

    explicit LoopbackReport(QObject* parent = nullptr);

    LoopbackMeasurement* measurement() const { return m_measurement; }
    void setMeasurement(LoopbackMeasurement* measurement);

    ReportTemplate* content() { return &document(); }

    /// Where the files of all saves lie on this machine's disk, in the order of saving, each once.
    QStringList savedFiles() const { return m_savedFiles; }

    /// Saves the report. Of the files of one save, the user is told once.
    bool save(bool overwrite = false) override;
    /// "loopback_20260131-142500": a name of its own for each run; "loopback" before the first.
    QString proposedFileName() override;
    QString cannotGenerateReportMessage() override;
    QString generateTxtReport() override;
    QString generateJsonReport() override;
    bool writeJsonReport(const QString& path, bool overwrite = false) override;
    /// A page that needs no other file.
    QString generateHtmlReport() override;

    /// For whoever has changed the saved files.
    void tellFilesChanged() { Q_EMIT reportFilesChanged(); }

    /// Puts the settings on the disk as they are now.
    void keepSettings() { saveSettings(); }
    /// The same where there are none yet, so that from then on it is worth a warning when they cannot be read.
    void keepFirstSettings();

Q_SIGNALS:
    void measurementChanged();
    /// A save needs the content: whoever hears this builds it before returning.
    void contentWanted();
    /// A save has written the file at the instrument path; comes before reportFilesChanged().
    void fileWritten(const QString& path);

protected:
    void settingsLoaded() override;
    void prepareDocument() override;
    void reportWritten(const QString& path) override;

private:
    void addSettings();
    void takeSettings();
    void proposeName();
    bool hasResults() const;

    QPointer<LoopbackMeasurement> m_measurement;
    QStringList m_savedFiles;
};

} // namespace uiutils::demo
