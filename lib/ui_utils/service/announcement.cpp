#include "service/announcement_p.h"

#include <algorithm>

namespace uiutils {

namespace {

int s_running = 0;
unsigned s_chain = 0;
int s_returns = 0;

} // namespace

Announcement::Announcement(std::initializer_list<Step> steps)
{
    if (s_running++ == 0) {
        ++s_chain;
        s_returns = 0;
    }
    add(steps);
}

Announcement::~Announcement()
{
    --s_running;
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
    return s_running > 0 ? s_chain : 0;
}

void Announcement::countReturn()
{
    ++s_returns;
}

bool Announcement::isExhausted()
{
    return s_running > 0 && s_returns >= mostReturns;
}

} // namespace uiutils
