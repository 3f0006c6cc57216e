#include "local/uidata_p.h"

#include "core/indexrange_p.h"
#include "local/attributekeys_p.h"
#include "local/uidatacontainer_p.h"

#include <QQmlEngine>
#include <QtDebug>

namespace keys = uiutils::attributekeys;
using uiutils::isWithin;
using uiutils::UiDataPrivate;

const QString UiData::TYPE_STRING = QStringLiteral("std::string");
const QString UiData::TYPE_VEC_STRING = QStringLiteral("std::vector<string>");
const QString UiData::TYPE_VEC_DOUBLE = QStringLiteral("std::vector<double>");
const QString UiData::TYPE_VEC_INT = QStringLiteral("std::vector<int32_t>");
const QString UiData::TYPE_BOOL = QStringLiteral("bool");
const QString UiData::TYPE_ENUM = QStringLiteral("eUiEnum");
const QString UiData::TYPE_UINT = QStringLiteral("uint");
const QString UiData::TYPE_INT = QStringLiteral("int");
const QString UiData::TYPE_UINT64 = QStringLiteral("quint64");
const QString UiData::TYPE_INT64 = QStringLiteral("qint64");
const QString UiData::TYPE_DOUBLE = QStringLiteral("double");

UiData::UiData(QObject* parent)
    : KivData(std::make_unique<UiDataPrivate>(), parent)
    , d(static_cast<UiDataPrivate*>(uiutils::KivDataPrivate::of(this)))
{
    d->enumList = new UiDataEnums(this);
    d->enumMap = new QQmlPropertyMap(this);
    QQmlEngine::setObjectOwnership(d->enumMap, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(d->enumList, QQmlEngine::CppOwnership);
    connect(d->enumList, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    // A range is set in two steps; the validator waits until both are done.
    connect(this, &UiData::minRangeChanged, this, &UiData::slotValidatorUpdate, Qt::QueuedConnection);
    connect(this, &UiData::maxRangeChanged, this, &UiData::slotValidatorUpdate, Qt::QueuedConnection);
    connect(this, &UiData::regexChanged, this, &UiData::slotValidatorUpdate);
}

UiData::~UiData()
{
    UiDataContainer::shared();
    while (!d->containers.isEmpty())
        d->containers.constLast()->removeItem(this);
    // The context holds a plain pointer.
    const QString id = getRegisterId();
    if (d->rootContext && d->rootContext->isValid() && !id.isEmpty()
            && d->rootContext->contextProperty(id).value<QObject*>() == this)
        d->rootContext->setContextProperty(id, nullptr);
}

// --- Choices -------------------------------------------------------------------------------------

UiDataEnums* UiData::getUiEnumList() const
{
    return d->enumList;
}

QObject* UiData::getEnums() const
{
    return d->enumMap;
}

QQmlPropertyMap* UiData::getEnumMap() const
{
    return d->enumMap;
}

QStringList UiData::getEnumLabels() const
{
    return d->enumLabels;
}

void UiData::setUiEnumList(UiDataEnums* list)
{
    if (list == d->enumList)
        return;
    if (d->enumList)
        disconnect(d->enumList, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    d->enumList = list;
    const QPointer<UiData> self(this);
    if (list)
        connect(list, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    if (getType() != TYPE_ENUM) {
        setType(TYPE_ENUM);
        if (self)
            Q_EMIT typeChanged();
    }
    // A list that is still being filled emits a signal when it is complete.
    if (self && (!d->enumList || d->enumList->isComplete()))
        slotEnumUpdate();
}

void UiData::setEnums(const QList<int>& values, const QStringList& labels, const QStringList& names)
{
    if (!d->enumList)
        return;
    for (int i = 0; i < values.size(); ++i)
        d->enumList->append(new UiEnumType(d->enumList, labels.value(i), names.value(i), values.at(i), true));
    d->enumList->componentComplete();
}

void UiData::setEnums(const QList<int>& values, const QStringList& labels)
{
    setEnums(values, labels, QStringList());
}

void UiData::slotEnumUpdate()
{
    const QStringList known = d->enumMap->keys();
    for (const QString& key : known)
        d->enumMap->clear(key);
    d->enumLabels.clear();
    d->enumValues.clear();
    const QList<UiEnumType*> choices = d->enumList ? d->enumList->getEnumList() : QList<UiEnumType*>();
    for (const UiEnumType* choice : choices) {
        if (!choice->getName().isEmpty())
            d->enumMap->insert(choice->getName(), choice->getValue());
        // A page in another language labels them anew.
        connect(choice, &UiEnumType::labelChanged, this, &UiData::slotEnumUpdate, Qt::UniqueConnection);
        d->enumLabels.append(choice->getLabel());
        d->enumValues.append(choice->getValue());
    }
    const QPointer<UiData> self(this);
    Q_EMIT valueChanged();
    if (self)
        Q_EMIT enumLabelsChanged();
    if (self)
        Q_EMIT enumCountChanged();
}

int UiData::getEnumCount() const
{
    return getType() == TYPE_BOOL ? 2 : d->enumValues.size();
}

QString UiData::enumLabel(int const& enumVal)
{
    if (getType() == TYPE_BOOL)
        return enumVal == 0 ? tr("False") : enumVal == 1 ? tr("True") : QString();
    return d->enumLabels.value(enumVal);
}

QString UiData::enumLabelForValue(int const& enumVal)
{
    const int position = enumIndex(enumVal);
    return position < 0 ? QString() : enumLabel(position);
}

int UiData::enumValue(int const& enumVal)
{
    if (getType() == TYPE_BOOL)
        return isWithin(enumVal, 2) ? enumVal : -1;
    return d->enumValues.value(enumVal, -1);
}

int UiData::enumIndex(int const& enumVal)
{
    if (getType() == TYPE_BOOL)
        return isWithin(enumVal, 2) ? enumVal : -1;
    return d->enumValues.indexOf(enumVal);
}

bool UiData::applicableAt(int const& i)
{
    if (getType() == TYPE_BOOL)
        return isWithin(i, 2);
    const UiEnumType* choice = d->enumList ? d->enumList->at(i) : nullptr;
    return choice && choice->isApplicable();
}

// --- Nothing to send -----------------------------------------------------------------------------

void UiData::invoke() { }

QString UiData::invokeWithStringArg(QString const&)
{
    return QString();
}

void UiData::apply() { }

void UiData::revert() { }

// --- In QML --------------------------------------------------------------------------------------

QObject* UiData::getObjectParent() const
{
    return d->declarer ? d->declarer.data() : parent();
}

void UiData::classBegin()
{
    d->isBeingDeclared = true;
}

void UiData::componentComplete()
{
    d->isBeingDeclared = false;
    QQmlEngine* engine = qmlEngine(this);
    if (!engine) {
        qWarning("registerId is used for context property name in a engine");
        return;
    }
    // The container becomes the parent, but the item must not outlive the page.
    d->declarer = parent();
    if (d->declarer)
        connect(d->declarer, &QObject::destroyed, this, [this] { delete this; });
    const QPointer<UiData> self(this);
    UiDataContainer::shared()->addItem(this);
    if (self)
        d->registerInEngine(engine->rootContext());
    if (!self || !d->isVectorType() || !d->elements.isEmpty() || getValue().toString().isEmpty())
        return;
    d->updateVectorValue();
    Q_EMIT valueCountChanged();
}

void UiDataPrivate::registerInEngine(QQmlContext* context)
{
    rootContext = context;
    const QString name = owner()->getRegisterId();
    if (!name.isEmpty())
        context->setContextProperty(name, q);
}

StringUiData::StringUiData(QObject* parent)
    : UiData(parent)
{
    setAttributes({{keys::type, TYPE_STRING}});
}

BoolUiData::BoolUiData(QObject* parent)
    : UiData(parent)
{
    setAttributes({{keys::type, TYPE_BOOL}});
}

EnumUiData::EnumUiData(QObject* parent)
    : UiData(parent)
{
    setAttributes({{keys::type, TYPE_ENUM}});
}
