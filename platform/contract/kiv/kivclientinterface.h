#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

/// A client's connection to one service.
///
/// It is a plain QObject on every back end, whatever carries the calls. **Ownership**: a client belongs to the back
/// end, or to the parent that was asked for, and goes at the latest with the back end. It outlives its service: while
/// the service is gone it answers like that of an empty service, and it is good again once the service has come back.
///
/// **Blocking**: setItem(), sendAction() and invokeAction() wait for the service's answer, at most as long as they say,
/// and do not spin an event loop meanwhile. An answer that comes later is discarded; what the service then does is
/// reported by its items as ever. Nothing else blocks. What a call changes may be reported before it returns, or any
/// time after.
class KIV_EXPORT KIVClientInterface : public QObject
{
    Q_OBJECT

public:
    /// How long a call that is given no time-out waits for the service, in milliseconds.
    static constexpr int callTimeout = 500;

    explicit KIVClientInterface(QObject* parent = nullptr);
    ~KIVClientInterface() override;

    /// The client of the base manager, the service that knows the unit, its user and its job. Null when no back end
    /// is registered or the base manager is not published. The same object on every call.
    static KIVClientInterface* getBaseMgrClient();

    /// A client of the service that is published under that name. Null when there is no back end or no such service.
    /// With a parent the caller gets a client of its own that dies with the parent; without one it gets the client
    /// that everybody shares.
    static KIVClientInterface* getSessionBusClient(const QString& service, QObject* parent = nullptr);

    /// Whether the service can be reached now.
    virtual bool isValid() const = 0;

    /// The name that the service is published under.
    virtual QString getServiceName() const = 0;

    /// The ids of all items whose id begins with `prefix`, in ascending string order; every item for an empty prefix.
    virtual QStringList getItemIds(const QString& prefix = QString()) const = 0;

    /// Fills `ids` with the full ids of the items of `service`, in the order in which the service lists them. Returns
    /// false, with an empty list, when this client does not know that service: it knows its own.
    virtual bool getItemList(const QString& service, QStringList* ids) const;

    /// The item of that id, or null.
    virtual KIVClientItem* getItem(const QString& id) const = 0;

    /// Asks the service to take a value for a setting. Returns whether it took it; if not, getLastError() says why. The
    /// service converts the value to the item's type. Waits for at most callTimeout.
    virtual bool setItem(const QString& id, const QVariant& value) = 0;

    /// Asks the service to carry out an action with an argument and waits for its answer for at most `timeoutMs`
    /// milliseconds. Returns whether it did; `reply`, which may be null, then holds its answer in words. If not,
    /// `reply` is left as it is and getLastError() says why, also that the service did not answer in time.
    virtual bool sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs) = 0;

    /// Asks the service to carry out an action without an argument. Waits for at most callTimeout.
    virtual bool invokeAction(const QString& id) = 0;

    /// Why the last call that returned false did, in words for the user; empty when the last call succeeded.
    virtual QString getLastError() const = 0;

Q_SIGNALS:
    /// The service reports an error of its own accord, in words for the user.
    void SigError(const QString& error);

    /// Items have come or gone: the service vanished or came back, or it publishes others than before. Emitted once for
    /// all of them, when getItem() gives the new answers; items that are gone have been destroyed by then.
    void itemsChanged();
};
