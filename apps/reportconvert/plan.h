#pragma once

#include "options.h"

#include <QString>
#include <QVector>

namespace uiutils::convert {

/// One file to write.
struct Target
{
    const Format* format;
    /// Empty for standard output.
    QString path;

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
    /// A folder to create before the first file is written; empty for none.
    QString newFolder;
    /// Why the call must not run, in words; empty when it may.
    QString error;

    int targetCount() const;
    /// Whether that flag is true of a requested format.
    bool writes(bool Format::*flag) const;
};

/// Gives every document and format its target. Rejects two targets of one name, and a target that is one of the
/// documents. Reads the disk and changes nothing on it.
Plan makePlan(const Options& options);

} // namespace uiutils::convert
