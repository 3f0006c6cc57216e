#pragma once

#include <QString>

/// What shows reports: the instrument's viewer of PDF files, and on desktops the program that users have chosen for a
/// kind of file. Paths are the instrument's.
namespace uiutils {

/// Whether the viewer shows files of this name: those that end in ".pdf" or ".pdf.gz".
bool isForViewer(const QString& path);

/// Whether the program of the viewer exists.
bool hasViewer();

/// Starts the viewer in a process of its own. Nothing is reported if that fails.
void startViewer(const QString& path, const QString& windowTitle);

/// Whether a desktop has a program for files of this name: not for compressed ones.
bool isForDesktop(const QString& path);

/// Whether there is a desktop, with the program "xdg-open", which opens files as users have chosen.
bool hasDesktop();

/// Opens the file in a process of its own. False if that program does not start.
bool openOnDesktop(const QString& path);

} // namespace uiutils
