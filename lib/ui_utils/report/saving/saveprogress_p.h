#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

namespace uiutils {

/// The progress of a save that writes one or several formats, each of them an equal share.
class SaveProgress
{
public:
    /// Starts at 0, not cancelled.
    void begin(int formats);
    /// Sets how much of the present format is written, 0 to 1. Returns whether the change is large enough to be shown.
    bool advance(double share);
    /// The present format is done. Returns whether the change is large enough to be shown.
    bool finishFormat();
    /// value() and isCancelled() keep their last state.
    void end();

    bool isRunning() const { return m_sinceLastTurn.isValid(); }
    double value() const { return m_value; }

    /// Does nothing unless a save is running.
    void cancel() { m_isCancelled = m_isCancelled || isRunning(); }
    bool isCancelled() const { return m_isCancelled; }

    /// Whether the page should handle events now: it has not for so long that users would notice.
    bool isPageDue();

private:
    bool take(double value);

    int m_formats = 1;
    int m_done = 0;
    double m_value = 0;
    bool m_isCancelled = false;
    QElapsedTimer m_sinceLastTurn;
};

} // namespace uiutils
