#include "service/announcement_p.h"

#include <QThread>

#include <algorithm>

namespace uiutils {

namespace {

Announcement* s_top = nullptr;
unsigned s_chains = 0;

} // namespace

Announcement::Announcement(std::initializer_list<Step> steps, Announcement* outer)
    : m_outer(outer)
    , m_below(s_top)
    , m_loopLevel(QThread::currentThread()->loopLevel())
    , m_first(s_top && s_top->m_loopLevel == m_loopLevel ? s_top->m_first : this)
{
    if (m_first == this)
        m_chain = ++s_chains;
    s_top = this;
    add(steps);
}

Announcement::~Announcement()
{
    s_top = m_below;
}

bool Announcement::isCurrent() const
{
    return m_loopLevel == QThread::currentThread()->loopLevel();
}

void Announcement::abandon()
{
    for (Announcement* announcement = this; announcement; announcement = announcement->m_outer)
        announcement->m_isAbandoned = true;
}

void Announcement::add(std::initializer_list<Step> steps)
{
    for (const Step step : steps) {
        if (std::find(m_next.cbegin(), m_next.cend(), step) == m_next.cend())
            m_next.append(step);
    }
}

bool Announcement::beginRound()
{
    m_steps = m_next;
    m_next.clear();
    ++m_rounds;
    return !m_steps.isEmpty();
}

unsigned Announcement::chain()
{
    return s_top && s_top->isCurrent() ? s_top->m_first->m_chain : 0;
}

void Announcement::countReturn()
{
    ++s_top->m_first->m_returns;
}

bool Announcement::isExhausted()
{
    return chain() != 0 && s_top->m_first->m_returns >= mostReturns;
}

} // namespace uiutils
