#pragma once

#include "core/uiutils_export.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

/// Process-wide relay of view state that belongs to the user and not to an object, such as the selected element of an
/// array item. It keeps the last value of each key as long as the process runs.
class UIUTILS_EXPORT UserData : public QObject
{
    Q_OBJECT

public:
    /// The one instance, created by the first call; never null and never deleted.
    static UserData* getInstance();

    /// Keeps `value` under `key`, and emits signalDataChanged() if it differs from the value kept before.
    Q_INVOKABLE void setData(const QString& key, const QVariant& value);

    /// The value last kept under `key`; invalid if there is none.
    Q_INVOKABLE QVariant getData(const QString& key) const { return m_values.value(key); }

Q_SIGNALS:
    /// Another value is kept under `key`.
    void signalDataChanged(const QString& key, const QVariant& value);

private:
    UserData() = default;
    ~UserData() override = default;

    static UserData* m_singleton;

    QHash<QString, QVariant> m_values;
};
