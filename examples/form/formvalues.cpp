#include "formvalues.h"

#include <uiutils/uidata.h>
#include <uiutils/uidatacontainer.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

FormValues::FormValues(const QString& path)
    : m_path(path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QMap<QString, QVariant> values;
    const QJsonObject stored = QJsonDocument::fromJson(file.readAll()).object();
    for (auto it = stored.begin(); it != stored.end(); ++it)
        values.insert(it.key(), it.value().toVariant());
    UiDataContainer::shared()->setPersistentConfigMap(values);
}

bool FormValues::save() const
{
    QJsonObject values;
    const QMap<QString, UiData*> items = UiDataContainer::shared()->getItems();
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        if (it.value()->isPersistent() && it.value()->getValue().isValid())
            values.insert(it.key(), QJsonValue::fromVariant(it.value()->getValue()));
    }
    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(values).toJson()) > 0 && file.commit();
}
