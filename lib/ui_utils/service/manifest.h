#pragma once

#include "core/uiutils_export.h"

#include <kiv/kivclientinterface.h>

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class KivData;
class QQmlContext;

namespace uiutils {
class ManifestPrivate;
}

/// The registry of one service's items for QML, and the transaction that changes several of them at once.
///
/// Constructing a manifest wraps every item that the service lists and enters the wrappers in a registry that all
/// manifests of the process share; setQmlContext() makes them known to QML by their names. A transaction begins with
/// startChanges(): from then on values set on wrappers are held back until applyChanges() sends them as one action, or
/// revertChanges() discards them.
///
/// **Ownership**: the wrappers are children of their manifest. The client is not owned. It may be null or be deleted;
/// then nothing is sent. The registry holds plain pointers. Of several wrappers of one id the latest has the entry.
/// When it is deleted, the one before it has the entry again; after the last one has been deleted, the entry is null.
///
/// Everything runs on the thread of the QML engine.
class UIUTILS_EXPORT Manifest : public QObject
{
    Q_OBJECT
    /// The service's name.
    Q_PROPERTY(QString name READ getServiceName CONSTANT)
    /// Whether the service can be reached now.
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY isAvailableChanged)

public:
    /// Wraps the items of the service `name`. `qmlTag` begins the names of the items in QML; the service's name does
    /// when it is empty.
    Manifest(KIVClientInterface* client, QString const& qmlTag, QString const& name, QObject* parent = nullptr);
    ~Manifest() override;

    /// What the names of the items in QML begin with.
    QString getQmlTag() const;
    QString getServiceName() const;
    /// The client of the service; null without one.
    KIVClientInterface* client() const;

    /// Whether a transaction runs.
    bool isChanging() const;
    /// Whether the service can be reached now; false without a client.
    bool isAvailable() const;

    /// Begins a transaction; nothing happens when one runs.
    Q_INVOKABLE void startChanges();
    /// Ends the transaction and sends all pending changes of the process to the service as one action. What was sent is
    /// not sent again unless it is changed again. If the service rejects it, every wrapper concerned emits
    /// KivData::errorChanged(), and its change stays pending. Of several wrappers of one id the latest with a pending
    /// change sends it; the others' changes are discarded after the service has accepted the batch.
    Q_INVOKABLE void applyChanges();
    /// Ends the transaction and discards all pending changes of the process, also of displaced wrappers.
    Q_INVOKABLE void revertChanges();
    /// Makes the service save its configuration under a name that users know it by.
    Q_INVOKABLE void saveConfig(QString const& friendlyName, bool hasHomeScreenIcon);

    /// The registered ids that contain both texts, in ascending order; an empty text is contained in all.
    static QStringList getKivIds(QString const& contains, QString const& filter);
    /// The wrapper that is registered under the id; null without one.
    static KivData* getKivData(QString const& id);
    /// The same as getKivData().
    KivData* getItem(QString const& id) const { return getKivData(id); }

    /// Makes the items that are registered now known by name to everything below `context`. Call it again after further
    /// items have been registered. When a service returns, the names of its items are evaluated again.
    static void setQmlContext(QQmlContext* context);
    /// The context last given to setQmlContext(); null after it has been deleted.
    static QQmlContext* qmlContext();

Q_SIGNALS:
    /// The service vanished or returned; its items have the new answers.
    void isAvailableChanged();

private:
    friend class uiutils::ManifestPrivate;
    /// Never destroyed, because wrappers may outlive every other static object.
    static QMap<QString, KivData*>& m_items;
    static QPointer<QQmlContext>& s_pContext;

    const std::unique_ptr<uiutils::ManifestPrivate> d;
};
