#pragma once

#include <embedded/embedded_export.h>
#include <embedded/servicedescription.h>

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

namespace kiv::embedded {

struct ServiceData;

/// The service's own side of a service in this process: it publishes and drives the items.
///
/// Owned by the back end on which it was published. The calls that change an item return false, and change nothing,
/// when there is no such item. A change is emitted by the item's own signal before the call returns, once, and only
/// when the answer differs from the old one. A slot may remove the service: check before you use it again. While the
/// service cannot be reached, changes are stored and not reported. No call blocks.
class KIVEMBEDDED_EXPORT EmbeddedService : public QObject
{
    Q_OBJECT

public:
    /// Carries out an action. Returns whether it succeeded, with the reply in words or the error.
    using ActionHandler = std::function<bool(const QString& argument, QString* replyOrError)>;

    ~EmbeddedService() override;

    /// The name under which the service is published.
    QString name() const;

    /// Ids in ascending string order, also while the service cannot be reached.
    QStringList itemIds(const QString& prefix = QString()) const;

    /// The item as clients have it, or null, also while the service cannot be reached. Owned by the service.
    KIVClientItem* item(const QString& id) const;

    /// Reports a value of an item of any category except an action, converted to the item's type; an invalid value for
    /// none. Limits bind only clients. Returns false also when the value cannot be converted. Emits
    /// KIVClientItem::valueChanged(), and unitsChanged() when a formatter shows the new value in another unit.
    bool setValue(const QString& id, const QVariant& value);

    /// Sets an attribute of an item. Emits KIVClientItem::unitsChanged() when it sets a formatter with another unit,
    /// and nothing otherwise.
    bool setAttribute(const QString& id, const QString& name, const QVariant& value);

    /// Sets the item's label. Emits nothing.
    bool setLabel(const QString& id, const QString& label);

    /// Emits KIVClientItem::unitsChanged().
    bool setUnit(const QString& id, const QString& unit);

    /// Emits KIVClientItem::isReadyChanged(). Writes to an item that is not ready are rejected.
    bool setReady(const QString& id, bool isReady);

    /// Emits KIVClientItem::qualityChanged().
    bool setQuality(const QString& id, KIVClientItem::Quality quality);

    /// Emits KIVClientItem::isApplicableChanged(). Returns false also for an item with an expression.
    bool setApplicable(const QString& id, bool isApplicable);

    /// Replaces the choices of an enumeration; its value stays. Returns false also when the item is not an enumeration,
    /// and when values or names are not unique or do not fit the type. Emits KIVEnumChoicesClientItem::valueChanged().
    bool setChoices(const QString& id, const QVector<ChoiceDescription>& choices);

    /// Sets the limits of values from clients, invalid for none; the value stays, and nothing is emitted. Returns false
    /// also when the item's type has no limits, the limits are not of its type (whole numbers for lengths) or the
    /// minimum is above the maximum.
    bool setRange(const QString& id, const QVariant& minimum, const QVariant& maximum);

    /// Rejects every write of a client to this setting with the error `text`; an empty text allows writes again.
    bool setRefusal(const QString& id, const QString& text);
    /// The error with which writes to this setting are rejected; empty when they are allowed.
    QString refusal(const QString& id) const;

    /// How long the service takes to answer a call from now on, in milliseconds; a negative number counts as zero.
    void setDelay(int ms);
    /// In milliseconds.
    int delay() const;

    /// Lets `handler` carry out an action in place of its description; an empty one undoes that. Returns false when the
    /// service has no such action. The handler may do anything, and may remove the service.
    bool setActionHandler(const QString& id, const ActionHandler& handler);

    /// Makes every client emit KIVClientInterface::SigError().
    void reportError(const QString& text);

    /// Mounts a drive at `path`, an instrument's mount point such as "/mnt/usb/", or unmounts it. Returns false when
    /// the path does not begin with a slash. Emits nothing. A drive is mounted while at least one service has it
    /// mounted, reachable or not, and is unmounted when that service is removed.
    bool setMounted(const QString& path, bool isMounted);
    /// Whether this service has a drive mounted at `path`.
    bool isMounted(const QString& path) const;

    /// Publishes another item after the present ones and restores its stored value. Returns false, with the reason in
    /// `problem`, when the description is not valid or the id is taken. Clients emit itemsChanged().
    bool addItem(const ItemDescription& description, QString* problem = nullptr);

    /// Removes an item; then clients emit itemsChanged(). Its stored value stays in the state file.
    bool removeItem(const QString& id);

    /// Whether clients can reach the service. False destroys the clients' items, true creates new ones with everything
    /// that was reported meanwhile; clients emit itemsChanged() once, if anything changed. A delayed request is
    /// discarded if its time comes while the service cannot be reached.
    void setReachable(bool isReachable);
    /// What setReachable() was told last; true at first.
    bool isReachable() const;

Q_SIGNALS:
    /// The text of reportError(), or why the state could not be stored.
    void errorReported(const QString& text);
    /// The items that clients see have changed.
    void itemsChanged();

private:
    friend struct ServiceData;
    EmbeddedService(const ServiceDescription& description, QObject* parent);

    const std::unique_ptr<ServiceData> d;
};

} // namespace kiv::embedded
