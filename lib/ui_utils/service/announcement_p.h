#pragma once

#include <QVarLengthArray>

#include <initializer_list>

class KivData;

namespace uiutils {

/// The announcement of a changed value. It lives on the stack of the function that emits the signals.
///
/// A listener may write the value again. Announcing that from inside would pile up on the stack, so the change is
/// announced in a further round, after this one.
///
/// A listener may also run an event loop, as a dialog does, and stay there for a long time. What is written in that
/// loop is announced there, and this announcement continues after it.
///
/// The announcements of one event loop that are on the stack at the same time form a chain. Items whose listeners
/// write each other return to items that are still being announced, on more and more paths, so such returns are counted
/// over the complete chain as well.
class Announcement
{
public:
    /// Emits one signal, or none if nothing has changed.
    using Step = void (KivData::*)();

    /// Far more than handlers need to settle.
    static constexpr int mostRounds = 100;
    static constexpr int mostReturns = 10000;

    /// `outer` is the announcement of the same item that waits for a listener's event loop to end, or null.
    Announcement(std::initializer_list<Step> steps, Announcement* outer);
    ~Announcement();
    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;

    /// Adds steps to the next round, each once.
    void add(std::initializer_list<Step> steps);
    /// Begins the next round; false if it has no steps.
    bool beginRound();
    const QVarLengthArray<Step, 4>& steps() const { return m_steps; }
    bool isLastRound() const { return m_rounds >= mostRounds; }

    Announcement* outer() const { return m_outer; }
    /// Whether no listener runs an event loop of its own.
    bool isCurrent() const;

    /// The item has been deleted. The outer announcements are abandoned too.
    void abandon();
    bool isAbandoned() const { return m_isAbandoned; }

    /// The number of the chain that this is part of.
    unsigned ownChain() const { return m_first->m_chain; }
    /// The number of the running chain, from 1; 0 when none runs.
    static unsigned chain();
    /// Counts a write to an item that the running chain has announced.
    static void countReturn();
    /// Whether the running chain has returned so often that it will not settle.
    static bool isExhausted();

private:
    QVarLengthArray<Step, 4> m_steps;
    QVarLengthArray<Step, 4> m_next;
    Announcement* m_outer;
    /// The announcement below on the stack, of any item, and the one that began the chain.
    Announcement* m_below;
    int m_loopLevel;
    Announcement* m_first;
    unsigned m_chain = 0;
    int m_returns = 0;
    int m_rounds = 0;
    bool m_isAbandoned = false;
};

} // namespace uiutils
