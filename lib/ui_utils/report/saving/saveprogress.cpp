#include "report/saving/saveprogress_p.h"

namespace uiutils {

namespace {

/// Progress bars have fewer steps.
constexpr double smallestStep = 0.001;
/// Milliseconds after which a page that does nothing looks frozen.
constexpr qint64 pagePatience = 50;

} // namespace

void SaveProgress::begin(int formats)
{
    *this = SaveProgress();
    m_formats = qMax(1, formats);
    m_sinceLastTurn.start();
}

bool SaveProgress::advance(double share)
{
    return take((m_done + qBound(0.0, share, 1.0)) / m_formats);
}

bool SaveProgress::finishFormat()
{
    m_done = qMin(m_done + 1, m_formats);
    return take(double(m_done) / m_formats);
}

void SaveProgress::end()
{
    m_sinceLastTurn.invalidate();
}

/// Never goes back: a renderer reports 0 as long as it does not know how many pages there are.
bool SaveProgress::take(double value)
{
    if (value < m_value + smallestStep && (value < 1 || m_value >= 1))
        return false;
    m_value = value;
    return true;
}

bool SaveProgress::isPageDue()
{
    if (!m_sinceLastTurn.isValid() || m_sinceLastTurn.elapsed() < pagePatience)
        return false;
    m_sinceLastTurn.start();
    return true;
}

} // namespace uiutils
