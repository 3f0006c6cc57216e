#pragma once

#include "core/uiutils_export.h"
#include "document/reportmetadata.h"

#include <QObject>
#include <QString>

#include <memory>

namespace uiutils {
class ScreenshotPrivate;
}

/// The metadata record of a screenshot, by which the instrument's file and cloud tools know what it was taken for.
///
/// Pictures are PNG files in "/cust/public/screenshots/", their records lie in "/cust/private/screenshots/metadata/".
/// Taking and saving the picture is the application's: save the record once the picture is safe.
class UIUTILS_EXPORT Screenshot : public QObject
{
    Q_OBJECT

public:
    Screenshot();
    ~Screenshot() override;

    /// The picture's file name without ".png" and without folders.
    void setBaseName(const QString& baseName);
    QString baseName() const;

    /// The record as last made.
    const ReportMetadata& metadata() const;

    /// Makes the record anew: a screenshot, with the pairs "wo" and "workflowId" of the work order that is active now
    /// in the application's session, as the workflow manager says. Without one, or without a workflow manager, it has
    /// neither.
    void updateMetadataInformation();

    /// Makes the record anew, names it after the picture and writes it. Returns false when it could not be written; see
    /// ReportMetadata::saveMetadataToFile().
    bool saveMetadata();

private:
    const std::unique_ptr<uiutils::ScreenshotPrivate> d;
};
