#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>

class KivData;
class Manifest;

namespace uiutils {

/// Hears of the changes that wait for the end of a transaction. Wrappers and manifests only know this: without anybody
/// who watches they look at one pointer, and only where a change waits.
///
/// What is noted is announced by the next flush(), when wrapper and manifest have nothing left to do: whoever hears of
/// it may delete them.
class ChangeWatch
{
public:
    /// Null while nobody watches.
    static ChangeWatch* current() { return s_current; }

    /// The wrapper's change waits now, waits with another value, or does not wait any more.
    virtual void noteChange(KivData* wrapper) = 0;
    /// The service has reported a value, which the item has already, while the value `wanted` was waiting.
    virtual void noteReport(KivData* wrapper, const QVariant& wanted) = 0;
    /// The service has rejected the change, which still waits.
    virtual void noteRejection(KivData* wrapper, const QString& reason) = 0;
    /// The service has rejected a batch of these changes, which still wait: which, by the names in the batch, and why
    /// each, if it says so.
    virtual void noteBatch(
            const QMap<QString, KivData*>& batch, const QString& reason, const QMap<QString, QString>& rejected)
            = 0;
    /// The wrapper has another item, or none.
    virtual void noteItem(KivData* wrapper) = 0;
    /// The wrapper is being deleted. Returns whether that is to be announced.
    virtual bool noteEnd(const KivData* wrapper) = 0;
    /// A manifest is going, or its transaction has begun or ended.
    virtual void noteManifests() = 0;
    /// Announces what was noted.
    virtual void announce() = 0;

    /// Announces what was noted, unless a ChangeBatch gathers it.
    static void flush()
    {
        if (s_current)
            flushCurrent();
    }

protected:
    ~ChangeWatch() = default;
    static void setCurrent(ChangeWatch* watch) { s_current = watch; }

private:
    static void flushCurrent();

    static ChangeWatch* s_current;
};

/// While one exists, what happens to many changes is gathered, to be announced at once. An event loop that a slot runs
/// meanwhile is not kept waiting.
class ChangeBatch
{
public:
    ChangeBatch();
    ~ChangeBatch();
    ChangeBatch(const ChangeBatch&) = delete;
    ChangeBatch& operator=(const ChangeBatch&) = delete;

    static bool isGathering();

private:
    ChangeBatch* m_outer;
    int m_loopLevel;
};

} // namespace uiutils
