#include "core/userdata.h"

UserData* UserData::m_singleton = nullptr;

UserData* UserData::getInstance()
{
    if (!m_singleton)
        m_singleton = new UserData;
    return m_singleton;
}

void UserData::setData(const QString& key, const QVariant& value)
{
    QVariant& kept = m_values[key];
    if (kept == value && kept.isValid() == value.isValid())
        return;
    kept = value;
    // A copy, because a slot may set another key and move the table.
    const QVariant announced = value;
    Q_EMIT signalDataChanged(key, announced);
}
