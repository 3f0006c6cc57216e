#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QVector>

class KIVClientInterface;

namespace uiutils::kivctl {

/// The settings of a service that have values, by their ids.
QJsonObject settingsOf(const KIVClientInterface& client);

/// Finds the settings of a service by their ids and by their names, as a batch does: of several of one name the first.
class SettingIndex
{
public:
    explicit SettingIndex(const KIVClientInterface& client);

    /// The id of the setting that a key of a batch stands for; empty when it stands for none.
    QString idOf(const QString& key) const;

private:
    QHash<QString, QString> m_ids;
};

/// Reads a JSON object of at most 16 MiB from a file, or from standard input if the name is "-". Returns false, with
/// the reason in `problem`, when that fails.
bool readSettings(const QString& file, QJsonObject* values, QString* problem);

/// As the argument of the action that applies a batch: JSON of ASCII alone, which all who read it understand alike.
QString batchArgument(const QJsonObject& values);

} // namespace uiutils::kivctl
