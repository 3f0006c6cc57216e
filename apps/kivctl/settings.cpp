#include "settings.h"

#include "base/batchname_p.h"
#include "texts.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/plovjsondocument.h>

#include <QFile>
#include <QJsonDocument>

#include <cstdio>

namespace uiutils::kivctl {

namespace {

const QLatin1String settingCategory(":config:");

bool openSettings(const QString& name, QFile* file)
{
    if (name == QLatin1String("-"))
        return file->open(stdin, QIODevice::ReadOnly);
    file->setFileName(name);
    return file->open(QIODevice::ReadOnly);
}

} // namespace

QJsonObject settingsOf(const KIVClientInterface& client)
{
    QJsonObject values;
    const QStringList ids = client.getItemIds(settingCategory);
    for (const QString& id : ids) {
        const QVariant value = client.getItem(id)->getValue();
        if (value.isValid())
            values.insert(id, QJsonValue::fromVariant(value));
    }
    return values;
}

SettingIndex::SettingIndex(const KIVClientInterface& client)
{
    QStringList ids;
    client.getItemList(client.getServiceName(), &ids);
    for (const QString& id : qAsConst(ids)) {
        if (!id.startsWith(settingCategory))
            continue;
        m_ids.insert(id, id);
        const QString name = client.getItem(id)->getName();
        if (!m_ids.contains(name))
            m_ids.insert(name, id);
    }
}

QString SettingIndex::idOf(const QString& key) const
{
    return m_ids.contains(key) ? m_ids.value(key) : m_ids.value(fromBatchName(key));
}

bool readSettings(const QString& name, QJsonObject* values, QString* problem)
{
    QFile file;
    if (!openSettings(name, &file)) {
        *problem = Texts::tr("%1 cannot be opened: %2.").arg(name, file.errorString());
        return false;
    }
    const QByteArray text = file.read(PlovJsonDocument::maximumFileSize + 1);
    if (text.size() > PlovJsonDocument::maximumFileSize) {
        *problem = Texts::tr("%1 is larger than 16 MiB.").arg(name);
        return false;
    }
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    *values = document.object();
    if (document.isObject())
        return true;
    const QString reason = error.error == QJsonParseError::NoError ? Texts::tr("not an object") : error.errorString();
    *problem = file.error() == QFileDevice::NoError
            ? Texts::tr("%1 is no JSON object of values by ids or names of settings: %2.").arg(name, reason)
            : Texts::tr("%1 cannot be read: %2.").arg(name, file.errorString());
    return false;
}

QString batchArgument(const QJsonObject& values)
{
    const QString text = QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
    QString argument;
    argument.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() < 0x80)
            argument += c;
        else
            argument += QStringLiteral("\\u") + QString::number(c.unicode(), 16).rightJustified(4, QLatin1Char('0'));
    }
    return argument;
}

} // namespace uiutils::kivctl
