#pragma once

#include <QDateTime>
#include <QString>

namespace uiutils::pdf {

/// What a PDF file says about itself. Empty texts and invalid dates are left out of the file.
struct DocumentInformation
{
    QString title;
    QString author;
    QString subject;
    QString keywords;
    /// The program that made the content, and the one that made the file of it.
    QString creator;
    QString producer;
    /// In local time without a zone, in UTC, or with an offset from it.
    QDateTime created;
    QDateTime modified;
    /// The part and the conformance level of the archive form that the file claims, such as 2 and "U"; 0 if none.
    int archivePart = 0;
    QString archiveConformance;
};

} // namespace uiutils::pdf
