#pragma once

#include <QTimer>

#include <functional>

namespace bench {

/// Changes all items in turn, some in each turn of a few milliseconds, and answers when it is done.
class Load
{
public:
    /// `turn` makes the changes from the given one on.
    explicit Load(const std::function<void(int first)>& turn);

private:
    QTimer m_timer;
    int m_changes = 0;
};

} // namespace bench
