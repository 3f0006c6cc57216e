#include "files/screenshot.h"

#include "base/paths.h"
#include "instrument/job_p.h"

namespace paths = uiutils::paths;

Screenshot::Screenshot() = default;
Screenshot::~Screenshot() = default;

void Screenshot::setBaseName(const QString& baseName)
{
    m_baseName = baseName;
}

void Screenshot::updateMetadataInformation()
{
    m_metadata.clear();
    m_metadata.setFormat(QStringLiteral("image/png"));
    m_metadata.setType(QStringLiteral("TESTDATA.screenshot"));
    m_metadata.setMetadataPath(paths::screenshotMetadata);
    m_metadata.setOriginBase(paths::screenshots);
    const QMap<QString, QString> order = uiutils::instrument::workOrder();
    for (auto it = order.cbegin(); it != order.cend(); ++it)
        m_metadata.setInfo(it.key(), it.value());
}

bool Screenshot::saveMetadata()
{
    updateMetadataInformation();
    m_metadata.setMetadataName(m_baseName + QLatin1String(".png"));
    return m_metadata.saveMetadataToFile();
}
