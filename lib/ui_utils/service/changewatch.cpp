#include "service/changewatch_p.h"

#include <QThread>

namespace uiutils {

namespace {

ChangeBatch* s_batch = nullptr;

} // namespace

ChangeWatch* ChangeWatch::s_current = nullptr;

void ChangeWatch::flushCurrent()
{
    if (!ChangeBatch::isGathering())
        s_current->announce();
}

ChangeBatch::ChangeBatch()
    : m_outer(s_batch)
    , m_loopLevel(QThread::currentThread()->loopLevel())
{
    s_batch = this;
}

ChangeBatch::~ChangeBatch()
{
    s_batch = m_outer;
    ChangeWatch::flush();
}

bool ChangeBatch::isGathering()
{
    return s_batch && s_batch->m_loopLevel == QThread::currentThread()->loopLevel();
}

} // namespace uiutils
