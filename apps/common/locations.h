#pragma once

#include <QString>
#include <QStringList>

namespace uiutils::apps {

/// The folder that stands for the instrument's disk unless the user names one: UIUTILS_ROOT, else one of the program's
/// own in the user's state folder.
QString defaultRoot(const QString& program);

/// The folders of the service files unless the user names some: those of KIV_SERVICES, else the ones that ship.
QStringList defaultServiceFolders();

/// Where the library's QML modules lie: where they are installed beside the program, else in the tree's build.
QString qmlModuleFolder();

/// The viewer of PDF files, where it is installed or built beside the program; empty when it is not there.
QString pdfViewerProgram();

} // namespace uiutils::apps
