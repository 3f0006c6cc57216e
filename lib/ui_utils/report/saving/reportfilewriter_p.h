#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

struct WrittenFile
{
    bool ok = false;
    /// The instrument path of the file that now holds the contents; empty if none does.
    QString path;
    /// What went wrong, for the user.
    QString error;
    /// Whether it failed because a file of the name exists that was not to be replaced.
    bool isTaken = false;
};

/// Writes a report to the instrument path as writeFileDurably() does, or, if `compressed`, its gzip form to the path
/// with ".gz" appended, just as durably: the former file stays there until the new one is completely on the disk.
///
/// A report that cannot be compressed is not lost: it is written to `path` uncompressed, and the result says so, with
/// `ok` false. The other form of the same report, from an earlier save, stays, because nobody has asked to remove it;
/// no temporary file remains. The folder must exist. A USB drive that was removed is an error; so is, unless
/// `mayReplace`, a file of the name, whoever put it there meanwhile.
WrittenFile writeReportFile(const QString& path, const QByteArray& contents, bool compressed, bool mayReplace = true);

/// Copies a saved report from one instrument path to another, durably and unchanged. Returns false, with the reason in
/// `error` and `target` untouched, if that fails; unless `mayReplace`, also if something exists at `target`.
bool copyReportFile(const QString& source, const QString& target, bool mayReplace, QString* error);

} // namespace uiutils
