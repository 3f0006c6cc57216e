#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::kivctl {

enum class Command {
    List,
    Get,
    Set,
    Batch,
    Action,
    Watch,
    Dump,
    Load,
    Services,
    Record,
    Replay,
};

/// What the command line asks for.
struct Options : apps::CommandLine
{
    enum Platform {
        /// Services of other processes, on the bus.
        Bus,
        /// Services of this process, from service files.
        Embedded,
    };

    Command command = Command::List;
    /// As many as the command takes.
    QStringList operands;
    bool isJson = false;
    int timeoutMs = 0;
    Platform platform = Bus;
    QStringList serviceFolders;
    /// Absolute folder below which the instrument's paths lie.
    QString root;

    // Of "record".
    bool isCompressed = false;
    /// 0 for no end.
    int durationMs = 0;
    /// The services that are recorded; empty for all.
    QStringList only;
    /// Attributes that are recorded beside the known ones.
    QStringList attributes;

    // Of "replay".
    double speed = 1;
    bool isLooped = false;
    bool isPaused = false;
    qint64 fromMs = 0;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::kivctl
