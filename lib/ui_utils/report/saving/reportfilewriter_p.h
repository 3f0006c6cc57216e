#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

struct WrittenFile
{
    bool ok = false;
    /// The instrument path of the file that holds the contents now; empty when none does.
    QString path;
    /// What went wrong, in words.
    QString error;
    /// Whether a file of the name, which was not to be replaced, is what went wrong.
    bool isTaken = false;
};

/// Writes a report to the instrument path as writeFileDurably() does, or, `compressed`, its gzip form to the path with
/// ".gz" behind it, just as durably: what lay there before lies there until all of the new form is on the disk.
///
/// A report that cannot be compressed is not lost: it is written to `path` as it is, and the result says so, with `ok`
/// false. The other form of the same report that an earlier save left stays, because nobody has asked for its end;
/// nothing else lies beside afterwards. The folder must exist, and a stick must be there: one that was pulled is an
/// error. So is, unless `mayReplace`, a file of the name, whoever put it there meanwhile.
WrittenFile writeReportFile(const QString& path, const QByteArray& contents, bool compressed, bool mayReplace = true);

/// Copies a saved report from one instrument path to another, durably and as it is. False, with the reason in `error`
/// and what lay at `target` untouched, when that fails; unless `mayReplace`, also when something lies there.
bool copyReportFile(const QString& source, const QString& target, bool mayReplace, QString* error);

} // namespace uiutils
