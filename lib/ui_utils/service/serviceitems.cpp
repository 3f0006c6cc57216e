#include "service/serviceitems.h"

#include "service/itemregistry_p.h"
#include "service/kivdata_p.h"
#include "service/manifeststate_p.h"

#include <QHash>
#include <QMetaProperty>
#include <QPointer>
#include <QStringList>

#include <utility>

namespace uiutils {

namespace {

constexpr int mostNamed = 3;

struct Property
{
    QMetaProperty meta;
    /// The class that the property's type points to.
    const QMetaObject* kind = nullptr;
    QPointer<KivData> wrapper;
    /// Its notifier is to be emitted, also with the same wrapper.
    bool isDue = false;
};

/// Whoever is told of one may delete others.
using Wrappers = QHash<QString, QPointer<KivData>>;

/// The class of wrappers that a property takes; null for a property of anything else.
const QMetaObject* wrapperKind(const QMetaProperty& property)
{
    const QMetaObject* const kind = QMetaType::metaObjectForType(property.userType());
    return kind && kind->inherits(&KivData::staticMetaObject) ? kind : nullptr;
}

QString listed(QStringList names)
{
    const int count = names.size();
    names = names.mid(0, mostNamed);
    const QString text = names.join(QLatin1String(", "));
    return count > mostNamed ? text + QStringLiteral(" and %1 more").arg(count - mostNamed) : text;
}

} // namespace

/// What the object knows of its properties and of the items behind them.
class ServiceItemsPrivate final : public itemregistry::NameUser
{
public:
    explicit ServiceItemsPrivate(ServiceItems* owner)
        : q(owner)
    {
    }

    void look(itemregistry::Told told) override;
    void readProperties();
    Wrappers wrappersByName(QPointer<Manifest>* manifest) const;
    bool put(Property* property, KivData* wrapper);
    void warnOf(const QStringList& missing, const QStringList& others);

    ServiceItems* q;
    QString tag;
    QPointer<Manifest> service;
    QVector<Property> properties;
    bool isComplete = false;
    bool hasWarned = false;
    bool isServiceDue = false;
    /// Counts the looks: whoever is told of one may cause the next one.
    unsigned looks = 0;
};

void ServiceItemsPrivate::readProperties()
{
    const QMetaObject* const meta = q->metaObject();
    for (int i = ServiceItems::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (const QMetaObject* const kind = wrapperKind(property))
            properties.append({property, kind, {}});
    }
}

/// By their names behind the tag. As in the context, of equal names the last in the order of ids counts.
Wrappers ServiceItemsPrivate::wrappersByName(QPointer<Manifest>* manifest) const
{
    Wrappers found;
    const QMap<QString, KivData*>& entries = itemregistry::entries();
    for (KivData* wrapper : entries) {
        const ManifestState* const state = wrapper ? manifestState(wrapper->parent()) : nullptr;
        if (!state || state->qmlTag != tag)
            continue;
        found.insert(KivDataPrivate::of(wrapper)->contextName().mid(tag.size() + 1), wrapper);
        *manifest = toManifest(wrapper->parent());
    }
    return found;
}

/// Returns false when this object was deleted by whoever was told.
bool ServiceItemsPrivate::put(Property* property, KivData* wrapper)
{
    const QPointer<ServiceItems> self(q);
    const bool isDue = std::exchange(property->isDue, false);
    if (property->wrapper != wrapper) {
        property->wrapper = wrapper;
        // Nobody else may write it, so the property says that it cannot be written.
        QObject* value = wrapper;
        int status = -1;
        int flags = 0;
        void* arguments[] = {&value, nullptr, &status, &flags};
        QMetaObject::metacall(q, QMetaObject::WriteProperty, property->meta.propertyIndex(), arguments);
    } else if (wrapper && isDue) {
        property->meta.notifySignal().invoke(q, Qt::DirectConnection);
    }
    return self;
}

void ServiceItemsPrivate::warnOf(const QStringList& missing, const QStringList& others)
{
    if (hasWarned || (missing.isEmpty() && others.isEmpty()))
        return;
    hasWarned = true;
    const QString advice = QStringLiteral("Describe the service again with uiutils-describe.");
    if (!missing.isEmpty())
        qWarning("The service \"%s\" has no item %s, which its module has. %s", qUtf8Printable(tag),
                qUtf8Printable(listed(missing)), qUtf8Printable(advice));
    if (!others.isEmpty())
        qWarning("The service \"%s\" has %s as items of another kind than its module says. %s", qUtf8Printable(tag),
                qUtf8Printable(listed(others)), qUtf8Printable(advice));
}

void ServiceItemsPrivate::look(itemregistry::Told told)
{
    if (!isComplete)
        return;
    QPointer<Manifest> manifest;
    const Wrappers wrappers = wrappersByName(&manifest);
    const unsigned thisLook = ++looks;
    isServiceDue = isServiceDue || service != manifest;
    service = manifest;
    for (Property& property : properties)
        property.isDue = property.isDue || told == itemregistry::Told::All;
    QStringList missing;
    QStringList others;
    for (Property& property : properties) {
        const QString name = QString::fromUtf8(property.meta.name());
        KivData* wrapper = wrappers.value(name);
        if (!wrapper)
            missing.append(name);
        if (wrapper && !wrapper->metaObject()->inherits(property.kind)) {
            others.append(name);
            wrapper = nullptr;
        }
        if (!put(&property, wrapper) || thisLook != looks)
            return;
    }
    if (manifest)
        warnOf(missing, others);
    if (std::exchange(isServiceDue, false))
        Q_EMIT q->serviceChanged();
}

ServiceItems::ServiceItems(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ServiceItemsPrivate>(this))
{
}

ServiceItems::~ServiceItems() = default;

QString ServiceItems::tag() const
{
    return d->tag;
}

void ServiceItems::setTag(const QString& tag)
{
    if (d->tag == tag)
        return;
    const QPointer<ServiceItems> self(this);
    d->tag = tag;
    Q_EMIT tagChanged();
    if (self)
        d->look(itemregistry::Told::Changes);
}

Manifest* ServiceItems::service() const
{
    return d->service;
}

void ServiceItems::componentComplete()
{
    d->isComplete = true;
    d->readProperties();
    d->look(itemregistry::Told::Changes);
}

} // namespace uiutils
