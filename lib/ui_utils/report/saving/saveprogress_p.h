#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

namespace uiutils {

/// How far a save is that writes one or several formats, each taken for an equal share.
class SaveProgress
{
public:
    /// From nothing, and not cancelled.
    void begin(int formats);
    /// The share of the format that is being written, 0 to 1. True when that is worth telling.
    bool advance(double share);
    /// The format is done with. True when that is worth telling.
    bool finishFormat();
    /// How far it came, and whether it was cancelled, is still known.
    void end();

    bool isRunning() const { return m_sinceLastTurn.isValid(); }
    double value() const { return m_value; }

    /// Without effect when nothing is running.
    void cancel() { m_isCancelled = m_isCancelled || isRunning(); }
    bool isCancelled() const { return m_isCancelled; }

    /// Whether the page should get a turn: it has had none for as long as users notice.
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
