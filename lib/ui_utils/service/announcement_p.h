#pragma once

#include <QVarLengthArray>

#include <initializer_list>

class KivData;

namespace uiutils {

/// The telling of a changed value, on the stack of who tells it.
///
/// A listener that writes the value once more does not tell of that from within, which would pile up on the stack: its
/// change is told in a further round, after this one.
///
/// A listener that runs an event loop, as a dialog does, may stay there for long: what is written in that loop is told
/// there, and this announcement goes on behind it.
///
/// Announcements of one event loop that lie on the stack together are a chain. Items whose listeners set each other
/// going come back to those that are being told over ever more ways, so that is counted over the whole chain as well.
class Announcement
{
public:
    /// Emits one signal, or none when there is nothing to say.
    using Step = void (KivData::*)();

    /// Far more than handlers need that settle.
    static constexpr int mostRounds = 100;
    static constexpr int mostReturns = 10000;

    /// `outer` is the one of the same item that waits behind a listener's event loop, or null.
    Announcement(std::initializer_list<Step> steps, Announcement* outer);
    ~Announcement();
    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;

    /// Adds what a further round tells; what it tells already is told once.
    void add(std::initializer_list<Step> steps);
    /// Goes on to the next round; false when there is nothing left to tell.
    bool beginRound();
    const QVarLengthArray<Step, 4>& steps() const { return m_steps; }
    bool isLastRound() const { return m_rounds >= mostRounds; }

    Announcement* outer() const { return m_outer; }
    /// Whether no event loop of a listener runs meanwhile.
    bool isCurrent() const;

    /// The item that is told of is gone, for the outer ones too.
    void abandon();
    bool isAbandoned() const { return m_isAbandoned; }

    /// The number of the running chain, from 1; 0 when none runs.
    static unsigned chain();
    /// Counts a write to an item that the running chain has been to.
    static void countReturn();
    /// Whether the running chain came back so often that it will not settle.
    static bool isExhausted();

private:
    QVarLengthArray<Step, 4> m_steps;
    QVarLengthArray<Step, 4> m_next;
    Announcement* m_outer;
    /// The one below on the stack, of any item, and the one that began the chain.
    Announcement* m_below;
    Announcement* m_first;
    int m_loopLevel;
    unsigned m_chain = 0;
    int m_returns = 0;
    int m_rounds = 0;
    bool m_isAbandoned = false;
};

} // namespace uiutils
