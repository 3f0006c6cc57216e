#pragma once

#include <QString>

/// Where the instrument keeps its files, and where these are on this machine's disk.
namespace uiutils::paths {

/// What users see as the unit's own storage, and as a USB drive.
inline const QLatin1String publicFolder("/cust/public/");
inline const QLatin1String usb("/mnt/usb/");
/// Folder of the saved reports.
inline const QLatin1String reports("/cust/public/reports/");
/// Folder of the users' report settings.
inline const QLatin1String reportSettings("/cust/private/lastconfigs/reportSettings/");
/// Folder of what was measured and is not saved yet: a folder for each application, and in it one for each kind of
/// draft.
inline const QLatin1String drafts("/cust/private/drafts/");
/// The reports that are not sent to the cloud, one path in each line.
inline const QLatin1String noSyncList("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");
/// The instrument's viewer of PDF files, and its working folder.
inline const QLatin1String pdfViewer("/base/bin/pdf_viewer");
inline const QLatin1String pdfViewerFolder("/base/qml/pdf_viewer");
/// Folder of the metadata records of cable tests.
inline const QLatin1String cableMetadata("/cust/private/cable/metadata");
/// Folders of the screenshots and of their metadata records.
inline const QLatin1String screenshots("/cust/public/screenshots/");
inline const QLatin1String screenshotMetadata("/cust/private/screenshots/metadata/");
/// Folder of the status icons and of the logo.
inline const QLatin1String images("/base/qml/common/images/");
inline const QLatin1String passIcon("/base/qml/common/images/pass_icon.png");
inline const QLatin1String marginalIcon("/base/qml/common/images/marginal_icon.png");
inline const QLatin1String failIcon("/base/qml/common/images/fail_icon.png");
inline const QLatin1String logo("/base/qml/common/images/Norda_Color-medium.png");
/// Folder in which the services keep the settings that users change.
inline const QLatin1String serviceSettings("/cust/private/lastconfigs/services/");
/// Beginning of the name of a temporary plot image; number and ".png" follow.
inline const QLatin1String plotImageStem("/tmp/rep_plot_");

/// The temporary image of the plot with that number.
QString plotImage(quint64 number);

} // namespace uiutils::paths

namespace uiutils {

/// The path on disk of an instrument path. Paths below /cust, /mnt/usb and /base and temporary plot images are mapped
/// below the folder in the environment variable UIUTILS_ROOT; every other path, and every path while the variable is
/// empty or unset, is returned unchanged. The meaning of a path counts, not its spelling: "//cust" and "/tmp/../cust"
/// are "/cust", and no path, such as "/cust/../..", leads out of the folder. Links are not resolved.
///
/// Call it only where the disk is accessed or a process is started: everything that is shown, stored or signalled keeps
/// the instrument's form.
///
/// While the variable's value is not text in the encoding of file names (see rootProblem()), these paths are mapped
/// below a name that no file system accepts: every access fails. The log has one line with the reason.
QString onDisk(const QString& path);

/// Why the folder in UIUTILS_ROOT cannot be used, and what to do: its name is not written in the encoding of file
/// names, mostly UTF-8, so that it would become the name of another folder. Empty when it can be used or is not set.
QString rootProblem();

} // namespace uiutils
