#pragma once

#include "options.h"

#include <QString>
#include <QVector>

namespace uiutils::convert {

/// One thing to write.
struct Target
{
    const Format* format;
    /// Empty for standard output.
    QString path;

    /// As messages name it.
    QString name() const { return path.isEmpty() ? QStringLiteral("<standard output>") : path; }
};

/// One document and what becomes of it.
struct Job
{
    /// A path, or "-" for standard input.
    QString document;
    QVector<Target> targets;

    /// As messages name it.
    QString name() const;
};

/// Everything that a call is going to do, known before anything is read or written.
struct Plan
{
    QVector<Job> jobs;
    /// A folder to make before the first file is written; empty when there is none.
    QString newFolder;
    /// What forbids it all, in words; empty when nothing does.
    QString error;

    int targetCount() const;
    /// Whether a format is asked for of which that flag is true.
    bool writes(bool Format::*flag) const;
};

/// Gives every document and format its target. Refuses two targets of one name, and a target that is one of
/// the documents. Looks at the disk and changes nothing there.
Plan makePlan(const Options& options);

} // namespace uiutils::convert
