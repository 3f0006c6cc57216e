#include "core/userdata.h"

#include "core/plainvalue_p.h"

UserData* UserData::m_singleton = nullptr;

UserData* UserData::getInstance()
{
    if (!m_singleton)
        m_singleton = new UserData;
    return m_singleton;
}

void UserData::setData(const QString& key, const QVariant& value)
{
    const QVariant plain = uiutils::plainValue(value);
    QVariant& kept = m_values[key];
    if (uiutils::isSameValue(kept, plain))
        return;
    kept = plain;
    Q_EMIT signalDataChanged(key, plain);
}
