#include "document/reportmetadata.h"

#include "base/durablefile.h"
#include "base/paths.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

using uiutils::onDisk;
namespace paths = uiutils::paths;

namespace {

const QLatin1String typeKey("type");
const QLatin1String formatKey("format");
const QLatin1String infoKey("info");
const QLatin1String timeStampKey("timeStamp");
const QLatin1String originFilePathKey("originFilePath");

const QLatin1Char slash('/');

/// The path of `name` in `folder`, whose last slash counts once or not at all. A name alone stays one: with a slash in
/// front it would lie at the top of the disk.
QString pathIn(QString folder, QString name)
{
    if (folder.isEmpty())
        return name;
    while (folder.endsWith(slash))
        folder.chop(1);
    while (name.startsWith(slash))
        name.remove(0, 1);
    return folder + slash + name;
}

/// The folder of the records of the reports in a folder.
QString recordFolderOf(QString folder)
{
    if (folder.contains(QLatin1String("/reports/autosave/")))
        return folder.replace(QLatin1String("/autosave/"), QLatin1String("/metadata/"));
    return folder.replace(QLatin1String("/public/reports/"), QLatin1String("/private/reports/metadata/"));
}

/// The bytes of a regular file: a pipe or a device could keep the reader waiting for ever. None, when it cannot be
/// read. One byte over the most that a record may have shows that there are more.
std::optional<QByteArray> recordBytes(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray text = file.read(ReportMetadata::maximumFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return text;
}

/// The text of a leaf.
QString textOf(const QJsonValue& value)
{
    return value.toVariant().toString();
}

/// Whether what lies under the keys is leaves, as far as there is anything: others write numbers.
bool holdsLeaves(const QJsonObject& object, const QStringList& keys)
{
    for (const QString& key : keys) {
        const QJsonValue value = object.value(key);
        if (value.isObject() || value.isArray())
            return false;
    }
    return true;
}

bool hasShapeOfRecord(const QJsonObject& object)
{
    const QJsonValue info = object.value(infoKey);
    return holdsLeaves(object, {typeKey, formatKey, timeStampKey, originFilePathKey})
            && (info.isUndefined() || (info.isObject() && holdsLeaves(info.toObject(), info.toObject().keys())));
}

} // namespace

void ReportMetadata::setMetadataName(const QString& name)
{
    m_metadataName = name;
}

void ReportMetadata::setMetadataPath(const QString& folder)
{
    m_metadataPath = folder;
}

void ReportMetadata::setOriginBase(const QString& folder)
{
    m_originBase = folder;
}

void ReportMetadata::setType(const QString& type)
{
    m_type = type;
}

void ReportMetadata::setFormat(const QString& format)
{
    m_format = format;
}

void ReportMetadata::setTimeStamp(const QString& timeStamp)
{
    m_timeStamp = timeStamp;
}

void ReportMetadata::setInfo(const QString& key, const QString& value)
{
    m_info.insert(key, value);
}

void ReportMetadata::setInfo(const std::string& key, const std::string& value)
{
    setInfo(QString::fromStdString(key), QString::fromStdString(value));
}

void ReportMetadata::updateMetadataPathBase(const QString& reportDir)
{
    m_originBase = reportDir;
    m_metadataPath = recordFolderOf(reportDir);
}

void ReportMetadata::updateMetadataPathCable()
{
    m_metadataPath = paths::cableMetadata;
}

void ReportMetadata::updateOriginFilePath()
{
    m_originFilePath = pathIn(m_originBase, m_metadataName);
    qDebug("originFilePath %s, metadataPath %s", qUtf8Printable(m_originFilePath), qUtf8Printable(m_metadataPath));
}

QString ReportMetadata::metadataFilePath() const
{
    return pathIn(m_metadataPath, m_metadataName + QLatin1String(".metadata"));
}

bool ReportMetadata::saveMetadataToFile()
{
    updateOriginFilePath();
    QString reason;
    if (write(&reason))
        return true;
    qWarning("%s could not open file %s", Q_FUNC_INFO, qUtf8Printable(metadataFilePath()));
    qWarning("%s", qUtf8Printable(reason));
    return false;
}

bool ReportMetadata::loadFromDisk()
{
    const QString path = metadataFilePath();
    const std::optional<QByteArray> text = hasPlace() ? recordBytes(onDisk(path)) : std::nullopt;
    if (!text) {
        qWarning("%s Could not open %s", Q_FUNC_INFO, qUtf8Printable(path));
        return false;
    }
    if (!takeJson(*text)) {
        qWarning("%s Error while parsing JSON from %s", Q_FUNC_INFO, qUtf8Printable(path));
        return false;
    }
    return true;
}

void ReportMetadata::clear()
{
    *this = ReportMetadata();
}

/// Whether the record lies in a folder, and in no other one.
bool ReportMetadata::hasPlace() const
{
    return !m_metadataPath.isEmpty() && !m_metadataName.contains(slash);
}

bool ReportMetadata::write(QString* reason) const
{
    if (!hasPlace()) {
        *reason = QStringLiteral("The record has no folder, or a name that is none of a file.");
        return false;
    }
    const QByteArray text = toJson();
    if (text.size() > maximumFileSize) {
        *reason = QStringLiteral("The record has more than %1 bytes.").arg(maximumFileSize);
        return false;
    }
    // Writing the file finds out whether the folder is there.
    uiutils::makeFolderDurably(onDisk(m_metadataPath));
    return uiutils::writeFileDurably(onDisk(metadataFilePath()), text, reason);
}

QByteArray ReportMetadata::toJson() const
{
    QJsonObject info;
    for (auto it = m_info.cbegin(); it != m_info.cend(); ++it)
        info.insert(it.key(), it.value());
    const QJsonObject record {{typeKey, m_type}, {formatKey, m_format}, {infoKey, info}, {timeStampKey, m_timeStamp},
            {originFilePathKey, m_originFilePath}};
    return QJsonDocument(record).toJson();
}

/// All of it or nothing.
bool ReportMetadata::takeJson(const QByteArray& text)
{
    if (text.size() > maximumFileSize)
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QJsonObject record = document.object();
    if (!document.isObject() || !hasShapeOfRecord(record))
        return false;
    m_type = textOf(record.value(typeKey));
    m_format = textOf(record.value(formatKey));
    m_timeStamp = textOf(record.value(timeStampKey));
    m_originFilePath = textOf(record.value(originFilePathKey));
    m_info.clear();
    const QJsonObject info = record.value(infoKey).toObject();
    for (auto it = info.begin(); it != info.end(); ++it)
        m_info.insert(it.key(), textOf(it.value()));
    return true;
}
