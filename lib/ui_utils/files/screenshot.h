#pragma once

#include "core/uiutils_export.h"
#include "document/reportmetadata.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class ScreenshotPrivate;
}

/// The metadata record of a screenshot, which tells the instrument's file and cloud tools what it was taken for.
///
/// Pictures are PNG files in "/cust/public/screenshots/"; their records are in "/cust/private/screenshots/metadata/".
/// The application takes and saves the picture: save the record after the picture is on the disk.
class UIUTILS_EXPORT Screenshot : public QObject
{
    Q_OBJECT

public:
    /// A screenshot without a name; its record is empty until it is made.
    Screenshot();
    ~Screenshot() override;

    /// The picture's file name without ".png" and without folders.
    void setBaseName(const QString& baseName);
    QString baseName() const;

    /// The record as it was last made.
    const ReportMetadata& metadata() const;

    /// Makes the record again: a screenshot, with the pairs "wo" and "workflowId" of the work order that is active now
    /// in the application's session. Without one, or without a workflow manager, it has neither.
    void updateMetadataInformation();

    /// Makes the record again, names it after the picture and writes it. Returns false if it could not be written; see
    /// ReportMetadata::saveMetadataToFile().
    bool saveMetadata();

private:
    const std::unique_ptr<uiutils::ScreenshotPrivate> d;
};
