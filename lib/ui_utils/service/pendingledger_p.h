#pragma once

#include "service/changewatch_p.h"
#include "service/pendingchange_p.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QVector>

#include <functional>
#include <memory>
#include <utility>

namespace uiutils {

/// The changes of the process that wait, or were overtaken. Exists while somebody holds it, so that all who show changes
/// show the same ones: what is dismissed here is dismissed there.
class PendingLedger final
    : public QObject
    , public std::enable_shared_from_this<PendingLedger>
    , private ChangeWatch
{
    Q_OBJECT

public:
    /// Knows the changes that wait already.
    static std::shared_ptr<PendingLedger> shared();
    ~PendingLedger() override;

    /// In the order in which they began to wait.
    QVector<PendingChangePtr> changes() const;
    PendingChangePtr find(const KivData* item) const { return m_changes.value(item); }

    /// Why the last batch with changes of these manifests was rejected, where no setting was named; else empty.
    QString problem(const std::function<bool(const QObject*)>& isOwner) const;

    // What is noted by these is announced by ChangeWatch::flush().

    /// Forgets a change.
    void remove(const PendingChangePtr& change);
    /// Why a change could not be sent, or be made again.
    void setProblem(const PendingChangePtr& change, const QString& reason);

Q_SIGNALS:
    void changed(const QVector<uiutils::PendingChangePtr>& changes);
    /// A manifest or a transaction began or ended, or problem() may answer in another way.
    void stateChanged();

private:
    PendingLedger() = default;

    void noteChange(KivData* wrapper) override;
    void noteReport(KivData* wrapper, const QVariant& wanted) override;
    void noteRejection(KivData* wrapper, const QString& reason) override;
    void noteBatch(const QMap<QString, KivData*>& batch, const QString& reason,
            const QMap<QString, QString>& rejected) override;
    void noteItem(KivData* wrapper) override;
    bool noteEnd(const KivData* wrapper) override;
    void noteManifests() override { m_isStateNoted = true; }
    void announce() override;

    void takePending();
    PendingChangePtr add(KivData* wrapper);
    void overtake(const PendingChangePtr& change);
    void follow(const PendingChangePtr& change);
    void renewOne(const KivData* wrapper);
    void renewAll();
    void note(const PendingChangePtr& change);
    void forgetProblem(const QObject* owner);

    QHash<const KivData*, PendingChangePtr> m_changes;
    QVector<PendingChangePtr> m_noted;
    bool m_isStateNoted = false;
    quint64 m_serial = 0;
    /// The item of the change that was removed last, and the serial that it had.
    std::pair<const KivData*, quint64> m_lastRemoved;
    QString m_problem;
    QSet<const QObject*> m_problemOwners;
};

} // namespace uiutils
