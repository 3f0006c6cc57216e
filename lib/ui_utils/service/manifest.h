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
/// revertChanges() drops them.
///
/// **Ownership**: the wrappers are children of their manifest. The client is not owned and may be null or go away; then
/// nothing is sent. The registry holds plain pointers. Of several wrappers of one id the latest has the entry; when it
/// goes, the one before it has it again, and when the last one is gone, the entry is null.
///
/// Everything runs on the thread of the QML engine.
class UIUTILS_EXPORT Manifest : public QObject
{
    Q_OBJECT
    /// The service's name.
    Q_PROPERTY(QString name READ getServiceName CONSTANT)

public:
    /// Wraps the items of the service `name`. `qmlTag` begins the names of the items in QML; the service's name does
    /// when it is empty.
    Manifest(KIVClientInterface* client, QString const& qmlTag, QString const& name, QObject* parent = nullptr);
    ~Manifest() override;

    QString getQmlTag() const;
    QString getServiceName() const;
    KIVClientInterface* client() const;

    /// Whether a transaction runs.
    bool isChanging() const;

    /// Begins a transaction; nothing happens when one runs.
    Q_INVOKABLE void startChanges();
    /// Ends the transaction and sends all pending changes of the process to the service as one action. What was sent is
    /// not sent again unless it is changed again. When the service refuses, every wrapper concerned emits
    /// KivData::errorChanged(), and its change stays pending. Of several wrappers of one id the latest whose change is
    /// pending speaks for it, and the others' changes are dropped when the service has taken the batch.
    Q_INVOKABLE void applyChanges();
    /// Ends the transaction and drops all pending changes of the process, also of wrappers whose entry later ones have.
    Q_INVOKABLE void revertChanges();
    /// Asks the service to keep its configuration under a name that users know it by.
    Q_INVOKABLE void saveConfig(QString const& friendlyName, bool hasHomeScreenIcon);

    /// The registered ids that contain both texts, in ascending order; an empty text is contained in all.
    static QStringList getKivIds(QString const& contains, QString const& filter);
    /// The wrapper that is registered under the id; null without one.
    static KivData* getKivData(QString const& id);
    KivData* getItem(QString const& id) const { return getKivData(id); }

    /// Makes the items that are registered now known by name to everything below `context`. Call it anew after further
    /// items have been registered. When a service comes back, the names of its items are evaluated anew.
    static void setQmlContext(QQmlContext* context);
    /// The context last given to setQmlContext(); null when it is gone.
    static QQmlContext* qmlContext();

private:
    friend class uiutils::ManifestPrivate;
    /// Never destroyed, because wrappers may outlive every other static object.
    static QMap<QString, KivData*>& m_items;
    static QPointer<QQmlContext> s_pContext;

    const std::unique_ptr<uiutils::ManifestPrivate> d;
};
