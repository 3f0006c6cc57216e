#pragma once

#include <QString>

/// The instrument's viewer of PDF reports. Paths are the instrument's.
namespace uiutils {

/// Whether the viewer shows files of this name: those that end in ".pdf" or ".pdf.gz".
bool isForViewer(const QString& path);

/// Whether the program of the viewer exists.
bool hasViewer();

/// Starts the viewer in a process of its own. Nothing is reported if that fails.
void startViewer(const QString& path, const QString& windowTitle);

} // namespace uiutils
