#include <kiv/kivnotification.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QUuid>

KIVNotification::KIVNotification(QObject* parent)
    : QObject(parent)
{
    m_values.insert(QStringLiteral("uid"), QUuid::createUuid().toString(QUuid::WithoutBraces));
}

KIVNotification::~KIVNotification() = default;

void KIVNotification::setLongLabel(const QString& longLabel)
{
    if (longLabel == m_longLabel)
        return;
    m_longLabel = longLabel;
    Q_EMIT changed();
}

void KIVNotification::setMsg(const QString& msg)
{
    if (msg == m_msg)
        return;
    m_msg = msg;
    Q_EMIT changed();
}

void KIVNotification::setValue(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
}

void KIVNotification::notifyTray()
{
    stamp();
    KIVNotificationModelManager::instance()->addToTray(*this);
}

void KIVNotification::notifyDialog()
{
    stamp();
    KIVNotificationModelManager::instance()->addDialog(this);
}

void KIVNotification::setKind(Kind kind)
{
    if (kind == m_kind)
        return;
    m_kind = kind;
    Q_EMIT changed();
}

void KIVNotification::stamp()
{
    m_time = QDateTime::currentDateTime();
    Q_EMIT changed();
}
