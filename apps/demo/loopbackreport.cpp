#include "loopbackreport.h"

#include "files/diskpath.h"
#include "languages/languages.h"
#include "limit.h"
#include "places.h"
#include "writers/html/templatetohtmlwriter.h"

#include <QFile>

namespace uiutils::demo {

const QString LoopbackReport::titleSetting = QStringLiteral("reportTitle");
const QString LoopbackReport::compressionSetting = QStringLiteral("reportCompression");

namespace {

constexpr int longestTitle = 80;

/// Settings of the writers that show a status on the report.
const struct
{
    QLatin1String name;
    int status;
} statusFlags[] = {{QLatin1String("pass"), Status::Pass}, {QLatin1String("marginal"), Status::Marginal},
        {QLatin1String("fail"), Status::Fail}};

/// The logo as part of the page; empty without a logo.
QString logoUri()
{
    QFile file(diskPath(places::logo));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(file.readAll().toBase64());
}

QMap<QString, QVariant> describe(const QString& name, const QString& type)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("type"), type}};
}

} // namespace

LoopbackReport::LoopbackReport(QObject* parent)
    : PageReport(parent)
{
    addSettings();
    // The page has a SaveProgress.
    setInteractive(true);
    setNotifiesOncePerSave(true);
    setIncludeJobInfo(true);
    setIncludeCustomerInfo(true);
    setWriterAttribute(QStringLiteral("includeTechnicianInfoTop"), true);
    setWriterAttribute(QStringLiteral("page"), QString());
    setWriterAttribute(QStringLiteral("plot_width"), 640);
    setWriterAttribute(QStringLiteral("plot_height"), 320);
}

void LoopbackReport::addSettings()
{
    auto* title = new StringUiData;
    QMap<QString, QVariant> attributes = describe(titleSetting, UiData::TYPE_STRING);
    attributes.insert(QStringLiteral("minRange"), 0);
    attributes.insert(QStringLiteral("maxRange"), longestTitle);
    title->setAttributes(attributes);
    addSetting(title);
    auto* compression = new BoolUiData;
    compression->setAttributes(describe(compressionSetting, UiData::TYPE_BOOL));
    compression->setValue(false);
    addSetting(compression);

    labelSettings(title, compression);
    connect(Languages::instance(), &Languages::currentChanged, title,
            [this, title, compression] { labelSettings(title, compression); });
    connect(title, &KivData::valueChanged, this, &LoopbackReport::takeSettings);
    connect(compression, &KivData::valueChanged, this, &LoopbackReport::takeSettings);
    takeSettings();
}

void LoopbackReport::labelSettings(UiData* title, UiData* compression)
{
    title->setLabel(tr("Title on the report"));
    compression->setLabel(tr("Compressed"));
    // A title that the user has typed stays.
    const QString before = m_usualTitle;
    m_usualTitle = tr("TCP loopback test");
    if (title->getValue().toString() == before)
        title->setValue(m_usualTitle);
}

void LoopbackReport::takeSettings()
{
    setTitle(getSetting(titleSetting)->getValue().toString());
    setCompressionEnabled(getSetting(compressionSetting)->getValue().toBool());
}

void LoopbackReport::setMeasurement(LoopbackMeasurement* measurement)
{
    if (measurement == m_measurement)
        return;
    if (m_measurement)
        m_measurement->disconnect(this);
    m_measurement = measurement;
    if (measurement)
        connect(measurement, &LoopbackMeasurement::finished, this, &LoopbackReport::proposeName);
    Q_EMIT measurementChanged();
}

bool LoopbackReport::hasResults() const
{
    return m_measurement && m_measurement->state() == LoopbackMeasurement::Finished;
}

/// A stored name belongs to an earlier run.
void LoopbackReport::settingsLoaded()
{
    proposeName();
}

void LoopbackReport::proposeName()
{
    if (hasResults())
        getSetting(QStringLiteral("reportName"))->setValue(proposedFileName());
}

QString LoopbackReport::proposedFileName()
{
    const QString time = m_measurement ? m_measurement->startTime() : QString();
    const QDateTime start = QDateTime::fromString(time, Qt::ISODate);
    const QString stem = QStringLiteral("loopback");
    return start.isValid() ? stem + start.toString(QStringLiteral("_yyyyMMdd-hhmmss")) : stem;
}

QString LoopbackReport::cannotGenerateReportMessage()
{
    return hasResults() ? QString() : tr("Finish a measurement on the Measure page first.");
}

void LoopbackReport::keepFirstSettings()
{
    if (!QFile::exists(diskPath(places::reportSettings + getFolder() + QStringLiteral(".json"))))
        keepSettings();
}

void LoopbackReport::prepareDocument()
{
    PageReport::prepareDocument();
    // The other files of the last save.
    for (const auto& flag : statusFlags)
        setWriterAttribute(flag.name, hasResults() && m_measurement->status() == flag.status);
}

void LoopbackReport::reportWritten(const QString& path)
{
    m_savedFiles += diskPath(path);
    m_savedFiles.removeDuplicates();
    Q_EMIT fileWritten(path);
}

QString LoopbackReport::generateHtmlReport()
{
    TemplateToHtmlWriter writer(document(), nullptr);
    setHtmlWriterAttributes(writer);
    writer.setAttribute(QStringLiteral("logo"), logoUri());
    return writer.getHtml();
}

} // namespace uiutils::demo
