#pragma once

#include <QString>
#include <QStringList>

namespace uiutils::apps {

/// The folder that stands for the instrument's disk unless the user names one: UIUTILS_ROOT, else a folder of the
/// program in the user's state folder.
QString defaultRoot(const QString& program);

/// The folders of the service files unless the user names some: those in KIV_SERVICES, else the installed ones.
QStringList defaultServiceFolders();

/// The folder of the library's QML modules: the one installed beside the program, else the one in the tree's build.
QString qmlModuleFolder();

/// The viewer of PDF files, installed or built beside the program; empty when it is missing.
QString pdfViewerProgram();

} // namespace uiutils::apps
