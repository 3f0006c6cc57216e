#pragma once

#include "options.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::convert {

/// One file to write.
struct Target
{
    const Format* format;
    /// Empty for standard output; a folder for Packing::Files.
    QString path;
    Packing packing = Packing::AsNeeded;
    /// The path of the packed form, if that has another one.
    QString packedPath = QString();

    /// Where it may be written.
    QStringList paths() const { return packedPath.isEmpty() ? QStringList(path) : QStringList {path, packedPath}; }
    /// The name in messages.
    QString name() const { return path.isEmpty() ? QStringLiteral("<standard output>") : path; }
};

/// One document and its targets.
struct Job
{
    /// A path, or "-" for standard input.
    QString document;
    QVector<Target> targets;

    /// The name in messages.
    QString name() const;
};

/// Everything that a call will do, known before anything is read or written.
struct Plan
{
    QVector<Job> jobs;
    /// Folders to create when the first file is written to them.
    QSet<QString> newFolders;
    /// Why the call must not run, in words; empty when it may.
    QString error;

    int targetCount() const;
    /// Whether a requested format has that trait.
    bool writes(Format::Trait trait) const;
};

/// Finds the documents of folders, and gives every document and format its target. Rejects two targets of one name, and
/// a target that is one of the documents. Reads the disk and changes nothing on it.
Plan makePlan(const Options& options);

} // namespace uiutils::convert
