#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QStringList>

class KIVClientItem;

/// A client's connection to one service.
///
/// It is a plain QObject on every back end, whatever carries the calls. **Ownership**: a client belongs to the back
/// end, or to the parent that was asked for, and goes at the latest with the back end.
class KIV_EXPORT KIVClientInterface : public QObject
{
    Q_OBJECT

public:
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

    /// The item of that id, or null.
    virtual KIVClientItem* getItem(const QString& id) const = 0;

Q_SIGNALS:
    /// The service reports an error of its own accord, in words for the user.
    void SigError(const QString& error);
};
