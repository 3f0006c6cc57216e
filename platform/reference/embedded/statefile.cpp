#include "statefile_p.h"

#include "base/durablefile_p.h"
#include "texts_p.h"

#include <kiv/plovjsondocument.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace kiv::embedded {

namespace {

constexpr int maximumNameBytes = 200;

bool mustBeEncoded(char byte, bool isFirst)
{
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7f || byte == '/' || byte == '%' || (isFirst && byte == '.');
}

/// The longest prefix that does not end inside a character.
QByteArray beginning(const QByteArray& utf8, int bytes)
{
    while (bytes > 0 && (static_cast<unsigned char>(utf8.at(bytes)) & 0xc0) == 0x80)
        --bytes;
    return utf8.left(bytes);
}

QString freeDamagedName(const QString& path)
{
    const QString stem = path + QLatin1String(".damaged");
    QString name = stem;
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = stem + QLatin1Char('-') + QString::number(i);
    return name;
}

bool moveAway(const QString& path, QString* problem)
{
    const QString name = freeDamagedName(path);
    if (!QFile::rename(path, name)) {
        *problem += QLatin1Char(' ')
                + StateTexts::tr("It could not be renamed, so changed settings will be lost when the program ends.");
        return false;
    }
    *problem += QLatin1Char(' ')
            + StateTexts::tr("It was renamed to %1, and the settings are those of the service file.").arg(name);
    return true;
}

} // namespace

QString escapedFileName(const QString& name)
{
    const QByteArray utf8 = name.toUtf8();
    QByteArray safe;
    for (int i = 0; i < utf8.size(); ++i) {
        if (mustBeEncoded(utf8.at(i), i == 0))
            safe += '%' + QByteArray(1, utf8.at(i)).toHex();
        else
            safe += utf8.at(i);
    }
    if (safe.size() > maximumNameBytes) {
        const QByteArray checksum = QCryptographicHash::hash(utf8, QCryptographicHash::Sha256).toHex();
        safe = beginning(safe, maximumNameBytes - 1 - checksum.size()) + '-' + checksum;
    }
    return QString::fromUtf8(safe);
}

QString stateFilePath(const QString& folder, const QString& service)
{
    return QDir(folder).filePath(escapedFileName(service) + QLatin1String(".state.json"));
}

QJsonValue storableValue(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? QJsonValue(value.toDouble()) : QJsonValue(QJsonValue::Undefined);
    case QMetaType::QVariantList: {
        QJsonArray array;
        const QVariantList list = value.toList();
        for (const QVariant& element : list) {
            const QJsonValue stored = storableValue(element);
            if (stored.isUndefined())
                return stored;
            array.append(stored);
        }
        return array;
    }
    case QMetaType::QVariantMap: {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it) {
            const QJsonValue member = storableValue(*it);
            if (member.isUndefined())
                return member;
            object.insert(it.key(), member);
        }
        return object;
    }
    default:
        return value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue(QJsonValue::Undefined);
    }
}

bool readStateFile(const QString& path, QJsonObject* values, QString* problem)
{
    *values = QJsonObject();
    // A broken link is in the way too.
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
        return true;
    PlovJsonDocument document;
    if (!document.readFile(path)) {
        *problem = document.errorString() + QLatin1Char('.');
        return moveAway(path, problem);
    }
    const QJsonValue read = document.object().value(QLatin1String("values"));
    if (!read.isObject()) {
        *problem = StateTexts::tr("%1: /values: the object with the values by item id is missing.").arg(path);
        return moveAway(path, problem);
    }
    *values = read.toObject();
    return true;
}

bool writeStateFile(const QString& path, const QString& service, const QJsonObject& values, QString* error)
{
    const auto failed = [&](const QString& reason) {
        *error = StateTexts::tr("The settings of %1 could not be stored in %2: %3.").arg(service, path, reason);
        return false;
    };
    if (!uiutils::makeFolderDurably(QFileInfo(path).path()))
        return failed(StateTexts::tr("the folder cannot be created"));
    const QByteArray text
            = QJsonDocument(QJsonObject {{QStringLiteral("service"), service}, {QStringLiteral("values"), values}})
                      .toJson();
    QString reason;
    return uiutils::writeFileDurably(path, text, &reason) || failed(reason);
}

} // namespace kiv::embedded
