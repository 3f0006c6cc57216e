#include <kiv/system.h>

#include <QTime>

System& System::getInstance()
{
    static System instance;
    return instance;
}

QString System::getCurrentTime() const
{
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
}
