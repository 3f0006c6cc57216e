#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::kivd {

/// What the command line asks for.
struct Options : apps::CommandLine
{
    QStringList serviceFolders;
    /// Services that stay unpublished.
    QStringList without;
    /// Absolute folder below which the instrument's paths lie.
    QString root;
    /// Where files for D-Bus activation are to be written instead of publishing; empty for nowhere.
    QString activationFolder;
    /// Whether service files are read again when they change.
    bool isFollowing = false;
};

/// Reads the arguments, the program's own name first.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::kivd
