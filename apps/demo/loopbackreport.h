#pragma once

#include "loopbackmeasurement.h"
#include "report/pagereport.h"

#include <QPointer>
#include <QStringList>

namespace uiutils::demo {

/// Saves the report of a loopback measurement, in any format.
///
/// It adds two settings to those of every report: "reportTitle", the title on the report, and "reportCompression",
/// whether the files are compressed.
class LoopbackReport : public PageReport
{
    Q_OBJECT
    /// The subject of the report; the caller keeps ownership. Each run gives the report a new name when it ends.
    Q_PROPERTY(uiutils::demo::LoopbackMeasurement* measurement READ measurement WRITE setMeasurement NOTIFY
                    measurementChanged)

public:
    static const QString titleSetting;
    static const QString compressionSetting;

    explicit LoopbackReport(QObject* parent = nullptr);

    LoopbackMeasurement* measurement() const { return m_measurement; }
    void setMeasurement(LoopbackMeasurement* measurement);

    /// The paths of the saved files on this machine's disk, in the order of saving, each once.
    QStringList savedFiles() const { return m_savedFiles; }

    /// "loopback_20260131-142500": a separate name for each run; "loopback" before the first.
    QString proposedFileName() override;
    QString cannotGenerateReportMessage() override;
    /// An HTML page that needs no other file.
    QString generateHtmlReport() override;

    /// Writes the present settings to the disk.
    void keepSettings() { saveSettings(); }
    /// Does that only if there are none yet, so that the user is warned later when they cannot be read.
    void keepFirstSettings();

Q_SIGNALS:
    void measurementChanged();
    /// A save has written the file at the instrument path; emitted before reportFilesChanged().
    void fileWritten(const QString& path);

protected:
    void settingsLoaded() override;
    void prepareDocument() override;
    void reportWritten(const QString& path) override;

private:
    void addSettings();
    void labelSettings(UiData* title, UiData* compression);
    void takeSettings();
    void proposeName();
    bool hasResults() const;

    QPointer<LoopbackMeasurement> m_measurement;
    QStringList m_savedFiles;
    /// That of a report without another one, in the language of the application.
    QString m_usualTitle;
};

} // namespace uiutils::demo
