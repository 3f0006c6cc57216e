#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace uiutils::check {

/// What is wrong in a file that somebody has written, in words for that somebody.
struct Finding
{
    enum Weight {
        /// The file, or what it describes, does not work.
        Error,
        /// It works, but hardly as was meant.
        Warning,
    };

    Weight weight = Error;
    /// As it was named on the command line, or below the folder that was.
    QString file;
    /// From 1; 0 where the finding concerns the file as a whole.
    int line = 0;
    int column = 0;
    /// The id of the item that the finding concerns; empty without one.
    QString item;
    /// One or two sentences: what is wrong, what was found, what is allowed, what to do.
    QString message;
};

/// In the order of files, lines and columns; of equal findings one is kept.
void sort(QVector<Finding>* findings);

/// "FILE:LINE:COLUMN: error: MESSAGE [ITEM]", the form that editors and build tools know.
QString toLine(const Finding& finding);

/// An object with the list `findings`, of objects with `weight` ("error", "warning"), `file`, `line`, `column`, `item`
/// and `message`, and with the counts `errors` and `warnings`.
QByteArray toJson(const QVector<Finding>& findings);

} // namespace uiutils::check
