#pragma once

#include <QString>

/// Where the instrument keeps things, and where they lie on this machine's disk.
namespace uiutils::paths {

/// What users see as the unit's own storage, and as a memory stick.
inline const QLatin1String publicFolder("/cust/public/");
inline const QLatin1String usb("/mnt/usb/");
/// Folder of the saved reports.
inline const QLatin1String reports("/cust/public/reports/");
/// Folder of the settings that users make for reports.
inline const QLatin1String reportSettings("/cust/private/lastconfigs/reportSettings/");
/// The reports that the cloud leaves alone, one path a line.
inline const QLatin1String noSyncList("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");
/// The instrument's viewer of PDF files, and the folder that it runs in.
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
/// Start of the name of a temporary plot image; number and ".png" follow.
inline const QLatin1String plotImageStem("/tmp/rep_plot_");

/// The temporary image of the plot with that number.
QString plotImage(quint64 number);

} // namespace uiutils::paths

namespace uiutils {

/// The place on disk of an instrument path. Paths below /cust, /mnt/usb and /base and temporary plot images are
/// put below the folder that the environment variable UIUTILS_ROOT names; every other path, and every path while
/// the variable is empty or unset, comes back unchanged. What a path means counts, not how it is spelt: "//cust" and
/// "/tmp/../cust" are "/cust", and none is put anywhere but below the folder, which "/cust/../.." would leave. Links
/// are not looked into.
///
/// Call it only where the disk is touched or a process is started: everything that is shown, stored or signalled
/// keeps the instrument's form.
///
/// While the variable's value is not text in the encoding of file names (see rootProblem()), those paths are put below
/// a name that no file system takes: whatever is asked for there fails. The log says why, once.
QString onDisk(const QString& path);

/// Why the folder that UIUTILS_ROOT names cannot be used, and what to do: its name is not written in the encoding of
/// file names, mostly UTF-8, so that it would become another one's. Empty when it can, or none is named.
QString rootProblem();

} // namespace uiutils
