#pragma once

#include "document/reportmetadata.h"
#include "document/reporttemplate.h"
#include "report/report.h"
#include "report/reportlisting_p.h"
#include "report/reportsettingsstore_p.h"
#include "report/saving/saving_p.h"

#include <QLatin1String>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

class KIVClientInterface;

namespace uiutils {

/// Names of the settings that the controller itself reads.
inline const QLatin1String nameSetting("reportName");
inline const QLatin1String formatSetting("reportFormat");
inline const QLatin1String syncSetting("reportSync_SS");
inline const QLatin1String jobInfoSetting("includeJobInfo");

/// Sets `held` to `value`. False if it had the value already.
template<typename Value> bool changes(Value& held, const Value& value)
{
    if (held == value)
        return false;
    held = value;
    return true;
}

/// What a report controller holds.
class ReportPrivate
{
public:
    explicit ReportPrivate(Report* report);

    ReportTemplate document;
    ReportMetadata metadata;
    ReportSettings settings;
    /// Where the values of the settings come from. Shared with a running load, which may outlive this object.
    std::shared_ptr<SettingOrigins> settingOrigins = std::make_shared<SettingOrigins>();
    /// The settings file that was loaded last; null before.
    QString settingsPath;
    ReportListing listing;
    std::shared_ptr<Saving> saving;
    QPointer<KIVClientInterface> workflowClient;

    QString templatePath;
    QString baseDirectory;
    QString tag;
    QString folder;
    QString title;
    QString subject;
    QString orientation;
    std::optional<bool> canWriteToJobManager;
    std::optional<bool> canWriteToFile;
    bool includeJobInfo = false;
    bool includeCustomerInfo = false;
    bool showHardwareRevs = true;
    bool showSoftwareRevs = true;
    bool isCompressionEnabled = false;
    bool notifiesTray = true;
    bool notifiesOncePerSave = false;
    bool isInteractive = false;
    QString testTime;
    QString testDuration;
    QString cdmTestType;
    QString cdmTestLabel;
    QString jobSchema;
    QString lastSavedXml;
    QString lastPdf;
    QStringList screenshots;
    QVariantMap writerAttributes;
    /// What makes the contents of the formats that have been added to the library's, by their values.
    QMap<int, std::function<QByteArray()>> ownFormats;
    QStringList syncedReports;
    QStringList unsyncedReports;

    // --- Notifying. Each returns false if a slot has deleted the controller. ---
    bool tellFolder();
    /// The list of reports is that of the folder that the next one is saved into.
    bool tellLocation();
    bool emitEach(std::initializer_list<void (Report::*)()> notifiers);
    /// If what is wrong with name or format has changed.
    bool tellProblems();

    // --- Services and settings ---
    void watchServices();
    void watchItems();
    void createSettings();
    /// Not before the first load, which leaves the page time to set the folder.
    bool loadSettingsOfNewFolder();

    // --- The document ---
    bool readTemplate(const QString& path);
    QString ownOrTemplate(const QString& own, const char* key) const;
    /// Passes the switches to a writer of HTML or of pages.
    template<typename Writer> void handOnSwitches(Writer& writer) const;

    // --- Saving ---
    bool addFormat(int value, const QString& label, const QString& suffix, const std::function<QByteArray()>& generate);
    QByteArray csvArchive(bool hasDecimalComma) const;
    QString chosenName();
    bool writeGenerated(const QString& path, QString (Report::*generate)(), const QString& suffix, bool overwrite);
    /// Writes a file of which `make` makes the contents; none are an error, for the reason `nothing`.
    bool writeMade(
            const QString& path, const std::function<QByteArray()>& make, const QString& nothing, bool overwrite);
    /// False if the controller has no such format.
    bool writeOwnFormat(int format, const QString& path, bool overwrite);
    /// Enters the files into one of the lists of saved files: each path is in one of them, once.
    void noteSaved(const QStringList& files, bool isSynced);

private:
    Report* const q;
    QString m_toldNameProblem;
    QString m_toldFormatProblem;
};

} // namespace uiutils
