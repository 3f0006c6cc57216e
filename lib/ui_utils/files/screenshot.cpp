#include "files/screenshot.h"

#include "base/paths_p.h"
#include "instrument/job_p.h"

namespace paths = uiutils::paths;

class uiutils::ScreenshotPrivate
{
public:
    QString baseName;
    ReportMetadata metadata;
};

Screenshot::Screenshot()
    : d(std::make_unique<uiutils::ScreenshotPrivate>())
{
}

Screenshot::~Screenshot() = default;

void Screenshot::setBaseName(const QString& baseName)
{
    d->baseName = baseName;
}

QString Screenshot::baseName() const
{
    return d->baseName;
}

const ReportMetadata& Screenshot::metadata() const
{
    return d->metadata;
}

void Screenshot::updateMetadataInformation()
{
    d->metadata.clear();
    d->metadata.setFormat(QStringLiteral("image/png"));
    d->metadata.setType(QStringLiteral("TESTDATA.screenshot"));
    d->metadata.setMetadataPath(paths::screenshotMetadata);
    d->metadata.setOriginBase(paths::screenshots);
    const QMap<QString, QString> order = uiutils::instrument::workOrder();
    for (auto it = order.cbegin(); it != order.cend(); ++it)
        d->metadata.setInfo(it.key(), it.value());
}

bool Screenshot::saveMetadata()
{
    updateMetadataInformation();
    d->metadata.setMetadataName(d->baseName + QLatin1String(".png"));
    return d->metadata.saveMetadataToFile();
}
