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

/// The service's own side of a service that lives in this process: what publishes and drives its items.
///
/// The back end that it was published on owns it. The calls that change an item return false, and change nothing, when
/// there is no such item. Clients hear of a change, on the item's own signal, before the call returns, once, and only
/// when the answer differs from the old one; a slot may end the service, so look before you use it again. While the
/// service cannot be reached the changes are kept and told to nobody. No call blocks.
class KIVEMBEDDED_EXPORT EmbeddedService : public QObject
{
    Q_OBJECT

public:
    /// Carries out an action. Returns whether it did; the text is then the reply in words, else what went wrong.
    using ActionHandler = std::function<bool(const QString& argument, QString* replyOrError)>;

    ~EmbeddedService() override;

    QString name() const;

    /// Ids in ascending string order, also while the service cannot be reached.
    QStringList itemIds(const QString& prefix = QString()) const;

    /// The item as clients have it, or null, also while the service cannot be reached. Owned by the service.
    KIVClientItem* item(const QString& id) const;

    /// Reports a value of an item of any category but an action, converted to the item's type; an invalid value for
    /// none. Limits bind clients only. Returns false also when the value does not convert. Emits
    /// KIVClientItem::valueChanged(), and unitsChanged() when a formatter shows the new value in another unit.
    bool setValue(const QString& id, const QVariant& value);

    /// Sets an attribute of an item. Emits KIVClientItem::unitsChanged() when it brings a formatter with another unit;
    /// nobody is told of anything else.
    bool setAttribute(const QString& id, const QString& name, const QVariant& value);

    /// Sets what the item is called, which nobody is told of.
    bool setLabel(const QString& id, const QString& label);

    /// Emits KIVClientItem::unitsChanged().
    bool setUnit(const QString& id, const QString& unit);

    /// Emits KIVClientItem::isReadyChanged(). Writes to an item that is not ready are refused.
    bool setReady(const QString& id, bool isReady);

    /// Emits KIVClientItem::qualityChanged().
    bool setQuality(const QString& id, KIVClientItem::Quality quality);

    /// Emits KIVClientItem::isApplicableChanged(). Returns false also for an item whose expression decides.
    bool setApplicable(const QString& id, bool isApplicable);

    /// Replaces the choices of an enumeration; its value stays. Returns false also when the item is none, and when
    /// values or names are not unique or do not fit the type. Emits KIVEnumChoicesClientItem::valueChanged().
    bool setChoices(const QString& id, const QVector<ChoiceDescription>& choices);

    /// Sets the limits of what clients set, invalid for none; the value stays, nobody is told. Returns false also when
    /// the item's type has no limits, they are not of its type (whole numbers for lengths) or the minimum is above the
    /// maximum.
    bool setRange(const QString& id, const QVariant& minimum, const QVariant& maximum);

    /// Refuses every write of a client to this setting with `text`; an empty text takes writes again.
    bool setRefusal(const QString& id, const QString& text);

    /// How long the service takes to answer any call from now on, in milliseconds; below zero counts as zero.
    void setDelay(int ms);

    /// Lets `handler` carry out an action instead of what its description says; an empty one undoes that. Returns false
    /// when the service has no such action. The handler may do anything, also end the service.
    bool setActionHandler(const QString& id, const ActionHandler& handler);

    /// Lets every client emit KIVClientInterface::SigError().
    void reportError(const QString& text);

    /// Mounts a drive at `path`, an instrument's mount point such as "/mnt/usb/", or takes it away. Returns false when
    /// the path does not begin with a slash. Nobody is told. A drive is there for as long as one service has it
    /// mounted, also while that one cannot be reached, and goes with it.
    bool setMounted(const QString& path, bool isMounted);
    bool isMounted(const QString& path) const;

    /// Publishes a further item behind the others and takes back the value that was kept for it. Returns false, with
    /// the reason in `problem`, when the description is not sound or the id is taken. Clients emit itemsChanged().
    bool addItem(const ItemDescription& description, QString* problem = nullptr);

    /// Clients emit itemsChanged(), when the item is gone. A value that was kept for it stays in the state file.
    bool removeItem(const QString& id);

    /// Whether clients reach the service. False destroys the items that clients have, true makes new ones that know
    /// what was reported meanwhile; clients emit itemsChanged() once when it differs from before. A request that is
    /// still to be carried out late is dropped if its time comes while the service cannot be reached.
    void setReachable(bool isReachable);
    bool isReachable() const;

Q_SIGNALS:
    /// What reportError() was given, or why the state could not be kept.
    void errorReported(const QString& text);
    /// The items that clients see are others than before.
    void itemsChanged();

private:
    friend struct ServiceData;
    EmbeddedService(const ServiceDescription& description, QObject* parent);

    const std::unique_ptr<ServiceData> d;
};

} // namespace kiv::embedded
