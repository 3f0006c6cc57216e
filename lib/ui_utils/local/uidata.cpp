#include "local/uidata_p.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "core/status.h"
#include "local/uidatacontainer_p.h"

#include <QDebug>
#include <QQmlEngine>

using uiutils::isWithin;
using uiutils::UiDataContainerPrivate;
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

namespace {

namespace keys {
const QString name = QStringLiteral("name");
const QString label = QStringLiteral("label");
const QString type = QStringLiteral("type");
const QString registerId = QStringLiteral("registerId");
const QString readOnly = QStringLiteral("readOnly");
const QString ready = QStringLiteral("ready");
const QString applicable = QStringLiteral("applicable");
const QString qualityCode = QStringLiteral("qualityCode");
const QString precision = QStringLiteral("precision");
const QString inputType = QStringLiteral("inputType");
const QString minRange = QStringLiteral("minRange");
const QString maxRange = QStringLiteral("maxRange");
const QString regex = QStringLiteral("regex");
const QString persistent = QStringLiteral("persistent");
const QString mandatory = QStringLiteral("mandatory");
const QString valueOk = QStringLiteral("valueOk");
const QString formatter = QStringLiteral("formatter");
} // namespace keys

} // namespace

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

// --- Attributes ----------------------------------------------------------------------------------

void UiData::setAttributes(const QMap<QString, QVariant>& attributes)
{
    if (attributes != d->attributes)
        d->attributes = attributes;
    d->tellContainers();
    const QPointer<UiData> self(this);
    slotValidatorUpdate();
    if (self)
        adoptFormatter(getAttr(keys::formatter).toString());
}

QVariant UiData::getAttr(QString const& key) const
{
    return d->attributes.value(key);
}

QString UiData::getId() const
{
    const QString name = getName();
    return QStringLiteral(":ui_only:%1:").arg(name.isEmpty() ? getRegisterId() : name);
}

QString UiData::getName() const
{
    return getAttr(keys::name).toString();
}

QString UiData::getType() const
{
    return getAttr(keys::type).toString();
}

void UiData::setType(const QString& type)
{
    d->attributes.insert(keys::type, type);
    if (d->isBeingDeclared)
        holdValue(d->declared(getValue()));
    // QML sets properties in the order in which they are written, the type perhaps behind the expression.
    updateValidator();
    Q_EMIT typeChanged();
}

QString UiData::getLabel() const
{
    return getAttr(keys::label).toString();
}

void UiData::setLabel(const QString& label)
{
    d->attributes.insert(keys::label, label);
    Q_EMIT labelChanged();
}

QString UiData::getRegex() const
{
    return getAttr(keys::regex).toString();
}

void UiData::setRegex(const QString& regex)
{
    d->attributes.insert(keys::regex, regex);
    Q_EMIT regexChanged();
}

QVariant UiData::getMinRange() const
{
    return getAttr(keys::minRange);
}

void UiData::setMinRange(const QVariant& minimum)
{
    d->attributes.insert(keys::minRange, uiutils::plainValue(minimum));
    const QPointer<UiData> self(this);
    Q_EMIT minRangeChanged();
    if (self)
        Q_EMIT rangeDescriptionChanged();
}

QVariant UiData::getMaxRange() const
{
    return getAttr(keys::maxRange);
}

void UiData::setMaxRange(const QVariant& maximum)
{
    d->attributes.insert(keys::maxRange, uiutils::plainValue(maximum));
    const QPointer<UiData> self(this);
    Q_EMIT maxRangeChanged();
    if (self)
        Q_EMIT rangeDescriptionChanged();
}

void UiData::setPrecision(unsigned precision)
{
    d->attributes.insert(keys::precision, precision);
    updateValidator();
    Q_EMIT precisionChanged();
}

void UiData::setInputType(unsigned inputType)
{
    d->attributes.insert(keys::inputType, inputType);
    Q_EMIT inputTypeChanged();
}

QString UiData::getRegisterId() const
{
    return getAttr(keys::registerId).toString();
}

void UiData::setRegisterId(const QString& id)
{
    if (d->attributes.contains(keys::registerId)) {
        qWarning("registerId already exsist!");
        return;
    }
    d->attributes.insert(keys::registerId, id);
}

bool UiData::isReadOnly() const
{
    return getAttr(keys::readOnly).toBool();
}

void UiData::setReadOnly(bool readOnly)
{
    d->attributes.insert(keys::readOnly, readOnly);
    Q_EMIT readOnlyChanged();
}

bool UiData::isReady() const
{
    return d->attributes.value(keys::ready, true).toBool();
}

void UiData::setReady(bool ready)
{
    d->attributes.insert(keys::ready, ready);
    const QPointer<UiData> self(this);
    Q_EMIT isReadyChanged();
    if (self)
        Q_EMIT KivData::isReadyChanged();
}

bool UiData::isApplicable()
{
    return d->attributes.value(keys::applicable, true).toBool();
}

void UiData::setApplicable(bool applicable)
{
    d->attributes.insert(keys::applicable, applicable);
    slotApplicChanged();
}

void UiData::slotApplicChanged()
{
    const QPointer<UiData> self(this);
    Q_EMIT applicableChanged();
    if (self)
        Q_EMIT KivData::applicableChanged();
}

bool UiData::isPersistent() const
{
    return getAttr(keys::persistent).toBool();
}

void UiData::setPersistent(bool persistent)
{
    d->attributes.insert(keys::persistent, persistent);
}

bool UiData::isMandatory() const
{
    return getAttr(keys::mandatory).toBool();
}

void UiData::setMandatory(bool mandatory)
{
    const bool isChange = mandatory != isMandatory();
    d->attributes.insert(keys::mandatory, mandatory);
    d->tellContainers();
    if (isChange)
        Q_EMIT mandatoryChanged();
}

bool UiData::isValueOk() const
{
    return d->attributes.value(keys::valueOk, true).toBool();
}

void UiData::setValueOk(bool valueOk)
{
    const bool isChange = valueOk != isValueOk();
    d->attributes.insert(keys::valueOk, valueOk);
    d->tellContainers();
    if (isChange)
        Q_EMIT valueOkChanged();
}

void UiDataPrivate::tellContainers()
{
    const bool hinders = owner()->isMandatory() && !owner()->isValueOk();
    if (hinders == isHindrance)
        return;
    isHindrance = hinders;
    for (UiDataContainer* container : qAsConst(containers))
        UiDataContainerPrivate::of(container)->hindrances += hinders ? 1 : -1;
}

int UiData::getQualityCode() const
{
    return getAttr(keys::qualityCode).toInt();
}

void UiDataPrivate::setQuality(int code)
{
    attributes.insert(keys::qualityCode, code);
    Q_EMIT q->qualityCodeChanged();
}

void UiData::setQualityNone()
{
    d->setQuality(uiutils::Status::None);
}

void UiData::setPassing()
{
    d->setQuality(uiutils::Status::Pass);
}

void UiData::setWarning()
{
    d->setQuality(uiutils::Status::Marginal);
}

void UiData::setFailing()
{
    d->setQuality(uiutils::Status::Fail);
}

QVariant UiData::getProperty(QString const& prop) const
{
    return getAttr(prop);
}

QValidator* UiData::getValidator() const
{
    return currentValidator();
}

void UiData::slotValidatorUpdate()
{
    renewValidator();
    Q_EMIT validatorChanged();
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
    // One that is still being filled tells when it is done.
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
    // The container becomes the parent, but the item is no older than the page.
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
