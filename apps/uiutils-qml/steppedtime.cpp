#include "steppedtime.h"

namespace uiutils::qmltool {

SteppedTime::SteppedTime()
{
    install();
    m_endless.start();
}

SteppedTime::~SteppedTime()
{
    m_endless.stop();
    uninstall();
}

void SteppedTime::stepTo(qint64 ms)
{
    m_now = ms;
    if (isRunning())
        advance();
}

void SteppedTime::start()
{
    m_begin = m_now;
    QAnimationDriver::start();
}

} // namespace uiutils::qmltool
