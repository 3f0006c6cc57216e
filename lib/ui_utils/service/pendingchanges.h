#pragma once

#include "core/uiutils_export.h"
#include "service/kivdata.h"

#include <QAbstractListModel>
#include <QVariantList>

#include <memory>

namespace uiutils {

class PendingChangesPrivate;

/// The settings that are changed together: what waits until a transaction ends, and what became of it. In QML:
/// PendingChanges.
///
/// | role | value |
/// |---|---|
/// | `item` | the KivData whose value was set |
/// | `id` | its id |
/// | `label` | what it is called on a screen; its name without a label |
/// | `oldValue` | what the service has |
/// | `newValue` | what was set |
/// | `oldText`, `newText` | both as users read them: choice, number in their locale, unit |
/// | `state` | Waiting, Overtaken or Refused |
/// | `problem` | why the service rejected this change, or why it could not be sent or set again, in words for the user |
/// | `service` | the name of its service |
///
/// A setting is listed from the moment at which it is set during a transaction, unless it is set to what the service
/// has, and in the order in which settings were set. It leaves the list when it is applied or reverted, by whomever,
/// and when the service reports the value that was set. If the service reports another value, the change has ended: it
/// is listed as overtaken until it is dismissed or set again, or until the service reports the value that was set.
/// While a service is away, its changes are listed with the texts that were known. What never waited, because no
/// transaction ran, is never listed.
///
/// All models of the process list the same changes: one that is dismissed in one of them leaves all. Overtaken changes
/// are known from the first model on. Every change is announced when it happens; what an operation or a manifest does to
/// many changes at once is announced when that is done. Slots may do anything, also delete items, manifests and this
/// model. Everything runs on the GUI thread.
class UIUTILS_EXPORT PendingChanges : public QAbstractListModel
{
    Q_OBJECT
    /// Whose changes are listed, and what begin(), apply() and revertAll() work on: Manifest objects. Empty, the
    /// default, for all of the process. What is no manifest, or no longer one, has no changes.
    Q_PROPERTY(QVariantList manifests READ manifests WRITE setManifests NOTIFY manifestsChanged)
    /// The number of rows.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// How many of the rows apply() would send: those that are waiting or were refused.
    Q_PROPERTY(int waiting READ waiting NOTIFY waitingChanged)
    /// How many rows a report of the service has overtaken.
    Q_PROPERTY(int overtaken READ overtaken NOTIFY overtakenChanged)
    /// Whether a transaction runs in one of the manifests.
    Q_PROPERTY(bool isChanging READ isChanging NOTIFY isChangingChanged)
    /// Why the last batch was rejected, in words for the user, if the service has not said which settings it rejects;
    /// otherwise empty, and the rows have the reasons. Empty again when one of the changes is set, applied or reverted.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    /// What became of a change.
    enum State {
        /// It waits for apply().
        Waiting,
        /// The service has reported another value meanwhile.
        Overtaken,
        /// It was rejected and still waits.
        Refused
    };
    Q_ENUM(State)

    /// What a row has; in QML the names of the roles stand for it.
    enum Role {
        ItemRole = Qt::UserRole + 1,
        IdRole,
        LabelRole,
        OldValueRole,
        NewValueRole,
        OldTextRole,
        NewTextRole,
        StateRole,
        ProblemRole,
        ServiceRole
    };
    Q_ENUM(Role)

    explicit PendingChanges(QObject* parent = nullptr);
    ~PendingChanges() override;

    QVariantList manifests() const;
    /// Resets the model.
    void setManifests(const QVariantList& manifests);
    int count() const { return rowCount(); }
    int waiting() const;
    int overtaken() const;
    bool isChanging() const;
    QString problem() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Begins a transaction in every manifest. Nothing happens where one runs.
    Q_INVOKABLE void begin();
    /// Sends what waits and ends the transactions. Each service gets its own changes as one batch, in the order of
    /// `manifests`, or of their construction; a service takes all of its batch or nothing. Of several settings of a
    /// service that have one name, each after the first is in a batch of its own. The first rejection ends it: what was
    /// rejected or not sent still waits, in a transaction. So does a setting whose service is away. Returns whether
    /// everything was accepted, also when nothing waits. Blocks for at most KIVClientInterface::callTimeout for each
    /// batch.
    Q_INVOKABLE bool apply();
    /// Gives the settings that wait the values that their services have, and ends the transactions.
    Q_INVOKABLE void revertAll();
    /// That of every model, which does nothing here.
    using QAbstractListModel::revert;
    /// Gives the setting of a row the value that its service has, however often it was set. False for a row that does
    /// not wait.
    Q_INVOKABLE bool revert(int row);
    /// Takes an overtaken row off the list. False for any other.
    Q_INVOKABLE bool dismiss(int row);
    /// Sets an overtaken setting again, in a transaction. False for any other row, and if the setting does not accept the
    /// value any more; the row then says why.
    Q_INVOKABLE bool setAgain(int row);
    /// For the `storeWith` of an entry: begins a transaction, if none runs, and sets the item; the value that the
    /// service has withdraws the change. Returns why the item did not accept the value, in words for the user; "" when
    /// it did.
    Q_INVOKABLE QString enter(KivData* item, const QVariant& value);

Q_SIGNALS:
    void manifestsChanged();
    void countChanged();
    void waitingChanged();
    void overtakenChanged();
    void isChangingChanged();
    void problemChanged();

private:
    friend class PendingChangesPrivate;

    const std::unique_ptr<PendingChangesPrivate> d;
};

} // namespace uiutils
