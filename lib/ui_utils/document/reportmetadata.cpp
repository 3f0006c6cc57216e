#include "document/reportmetadata.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "document/documentreader_p.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <optional>

using uiutils::onDisk;
using uiutils::textOf;
namespace paths = uiutils::paths;

namespace {

const QLatin1String typeKey("type");
const QLatin1String formatKey("format");
const QLatin1String infoKey("info");
const QLatin1String timeStampKey("timeStamp");
const QLatin1String originFilePathKey("originFilePath");

const QLatin1Char slash('/');

/// The path of `name` in `folder`, with one slash between them. Without a folder the name stays as it is: a slash in
/// front would make it a path at the top of the file system.
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

/// The folder of the records for the reports in `folder`.
QString recordFolderOf(QString folder)
{
    if (folder.contains(QLatin1String("/reports/autosave/")))
        return folder.replace(QLatin1String("/autosave/"), QLatin1String("/metadata/"));
    return folder.replace(QLatin1String("/public/reports/"), QLatin1String("/private/reports/metadata/"));
}

/// The bytes of a regular file: a pipe or a device could keep the reader waiting forever. Nothing if it cannot be read.
/// Of a file that is too large, one byte more than the maximum.
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

/// Whether the values of the keys that exist are leaves: other programs write numbers.
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

class uiutils::ReportMetadataPrivate : public QSharedData
{
public:
    bool hasPlace() const;
    QString filePath() const;
    bool write(QString* reason) const;
    QByteArray toJson() const;
    bool takeJson(const QByteArray& text);

    QString name;
    QString folder;
    QString originBase;
    QString type;
    QString format;
    QMap<QString, QString> pairs;
    QString timeStamp;
    QString originFilePath;
};

using uiutils::ReportMetadataPrivate;

ReportMetadata::ReportMetadata()
    : d(new ReportMetadataPrivate)
{
}

ReportMetadata::ReportMetadata(const ReportMetadata& other) = default;
ReportMetadata& ReportMetadata::operator=(const ReportMetadata& other) = default;
ReportMetadata::~ReportMetadata() = default;

void ReportMetadata::setMetadataName(const QString& name)
{
    d->name = name;
}

QString ReportMetadata::metadataName() const
{
    return d->name;
}

void ReportMetadata::setMetadataPath(const QString& folder)
{
    d->folder = folder;
}

QString ReportMetadata::metadataPath() const
{
    return d->folder;
}

void ReportMetadata::setOriginBase(const QString& folder)
{
    d->originBase = folder;
}

QString ReportMetadata::originBase() const
{
    return d->originBase;
}

void ReportMetadata::setType(const QString& type)
{
    d->type = type;
}

QString ReportMetadata::type() const
{
    return d->type;
}

void ReportMetadata::setFormat(const QString& format)
{
    d->format = format;
}

QString ReportMetadata::format() const
{
    return d->format;
}

void ReportMetadata::setTimeStamp(const QString& timeStamp)
{
    d->timeStamp = timeStamp;
}

QString ReportMetadata::timeStamp() const
{
    return d->timeStamp;
}

void ReportMetadata::setInfo(const QString& key, const QString& value)
{
    d->pairs.insert(key, value);
}

void ReportMetadata::setInfo(const std::string& key, const std::string& value)
{
    setInfo(QString::fromStdString(key), QString::fromStdString(value));
}

QString ReportMetadata::getInfo(const QString& key) const
{
    return d->pairs.value(key);
}

QMap<QString, QString> ReportMetadata::info() const
{
    return d->pairs;
}

void ReportMetadata::updateMetadataPathBase(const QString& reportDir)
{
    d->originBase = reportDir;
    d->folder = recordFolderOf(reportDir);
}

void ReportMetadata::updateMetadataPathCable()
{
    d->folder = paths::cableMetadata;
}

QString ReportMetadata::originFilePath() const
{
    return d->originFilePath;
}

void ReportMetadata::updateOriginFilePath()
{
    d->originFilePath = pathIn(d->originBase, d->name);
    qDebug("originFilePath %s, metadataPath %s", qUtf8Printable(d->originFilePath), qUtf8Printable(d->folder));
}

QString ReportMetadata::metadataFilePath() const
{
    return d->filePath();
}

bool ReportMetadata::saveMetadataToFile()
{
    updateOriginFilePath();
    QString reason;
    if (d->write(&reason))
        return true;
    qWarning("%s could not open file %s", Q_FUNC_INFO, qUtf8Printable(metadataFilePath()));
    qWarning("%s", qUtf8Printable(reason));
    return false;
}

bool ReportMetadata::loadFromDisk()
{
    const QString path = metadataFilePath();
    const std::optional<QByteArray> text = d->hasPlace() ? recordBytes(onDisk(path)) : std::nullopt;
    if (!text) {
        qWarning("%s Could not open %s", Q_FUNC_INFO, qUtf8Printable(path));
        return false;
    }
    if (!d->takeJson(*text)) {
        qWarning("%s Error while parsing JSON from %s", Q_FUNC_INFO, qUtf8Printable(path));
        return false;
    }
    return true;
}

void ReportMetadata::clear()
{
    *this = ReportMetadata();
}

/// Whether the record has a folder, and its name does not lead to another one.
bool ReportMetadataPrivate::hasPlace() const
{
    return !folder.isEmpty() && !name.contains(slash);
}

QString ReportMetadataPrivate::filePath() const
{
    return pathIn(folder, name + QLatin1String(".metadata"));
}

bool ReportMetadataPrivate::write(QString* reason) const
{
    if (!hasPlace()) {
        *reason = QStringLiteral("The record has no folder, or its name is not a file name.");
        return false;
    }
    const QByteArray text = toJson();
    if (text.size() > ReportMetadata::maximumFileSize) {
        *reason = QStringLiteral("The record has more than %1 bytes.").arg(ReportMetadata::maximumFileSize);
        return false;
    }
    // If this fails, writing the file does, too.
    uiutils::makeFolderDurably(onDisk(folder));
    return uiutils::writeFileDurably(onDisk(filePath()), text, reason);
}

QByteArray ReportMetadataPrivate::toJson() const
{
    QJsonObject info;
    for (auto it = pairs.cbegin(); it != pairs.cend(); ++it)
        info.insert(it.key(), it.value());
    const QJsonObject record {{typeKey, type}, {formatKey, format}, {infoKey, info}, {timeStampKey, timeStamp},
            {originFilePathKey, originFilePath}};
    return QJsonDocument(record).toJson();
}

/// Takes everything or nothing.
bool ReportMetadataPrivate::takeJson(const QByteArray& text)
{
    if (text.size() > ReportMetadata::maximumFileSize)
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QJsonObject record = document.object();
    if (!document.isObject() || !hasShapeOfRecord(record))
        return false;
    type = textOf(record.value(typeKey));
    format = textOf(record.value(formatKey));
    timeStamp = textOf(record.value(timeStampKey));
    originFilePath = textOf(record.value(originFilePathKey));
    pairs.clear();
    const QJsonObject info = record.value(infoKey).toObject();
    for (auto it = info.begin(); it != info.end(); ++it)
        pairs.insert(it.key(), textOf(it.value()));
    return true;
}
