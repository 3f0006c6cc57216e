#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

/// A client's connection to one service.
///
/// It is a plain QObject on every back end, whatever transports the calls. **Ownership**: a client belongs to the back
/// end, or to the parent that was given, and is deleted with the back end at the latest. It outlives its service: while
/// the service is away it answers like a client of an empty service, and it is valid again when the service returns.
/// A back end that finds its services in other processes also gives clients of services that have not started yet.
///
/// **Blocking**: setItem(), sendAction() and invokeAction() wait for the service's answer, at most for the stated time,
/// and run no event loop meanwhile. A later answer is discarded; what the service then does is reported by its items as
/// usual. Nothing else blocks. The effects of a call may be reported before it returns, or any time later.
class KIV_EXPORT KIVClientInterface : public QObject
{
    Q_OBJECT

public:
    /// How long a call without a timeout of its own waits for the service, in milliseconds.
    static constexpr int callTimeout = 500;

    explicit KIVClientInterface(QObject* parent = nullptr);
    ~KIVClientInterface() override;

    /// The client of the base manager, the service that knows the unit, its user and its job. Null when no back end is
    /// registered, or when the back end knows that there is no base manager. Every call returns the same object.
    static KIVClientInterface* getBaseMgrClient();

    /// A client of the service of that name. Null without a back end, for a name that no service can have, and when the
    /// back end knows that there is no such service. Where the service may still come, the client waits for it: it is
    /// not valid until then. With a parent the caller gets a client of its own, which is deleted with the parent;
    /// without one it gets the shared client.
    static KIVClientInterface* getSessionBusClient(const QString& service, QObject* parent = nullptr);

    /// Whether the service can be reached now.
    virtual bool isValid() const = 0;

    /// The name under which the service is published.
    virtual QString getServiceName() const = 0;

    /// The ids of all items whose id begins with `prefix`, in ascending string order; every item for an empty prefix.
    virtual QStringList getItemIds(const QString& prefix = QString()) const = 0;

    /// Fills `ids` with the full ids of the items of `service`, in the service's order. Returns false, with an empty
    /// list, when this client does not know that service: it knows only its own.
    virtual bool getItemList(const QString& service, QStringList* ids) const;

    /// The item with that id, or null.
    virtual KIVClientItem* getItem(const QString& id) const = 0;

    /// Requests a new value for a setting. Returns whether the service accepted it; if not, getLastError() says why.
    /// The service converts the value to the item's type. Waits for at most callTimeout.
    virtual bool setItem(const QString& id, const QVariant& value) = 0;

    /// Requests an action with an argument, and waits at most `timeoutMs` milliseconds for the answer. Returns whether
    /// the service carried it out; `reply`, which may be null, then holds the answer in words. If not, `reply` is
    /// unchanged and getLastError() says why, a timeout included. After a timeout a back end may reject further calls at
    /// once until the service shows that it is awake.
    virtual bool sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs) = 0;

    /// Requests an action without an argument. Waits for at most callTimeout.
    virtual bool invokeAction(const QString& id) = 0;

    /// Why the last call returned false, in words for the user; empty after a successful call.
    virtual QString getLastError() const = 0;

Q_SIGNALS:
    /// The service reports an error that no call caused, in words for the user.
    void SigError(const QString& error);

    /// Items were added or removed: the service vanished or returned, or it publishes other items than before. Emitted
    /// once for all of them, when getItem() gives the new answers; removed items have been destroyed by then.
    void itemsChanged();
};
