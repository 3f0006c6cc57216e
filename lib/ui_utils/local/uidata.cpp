#include "local/uidata.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "core/status.h"
#include "local/uidatacontainer.h"

#include <QDebug>
#include <QQmlEngine>

using uiutils::isWithin;

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
    : KivData(parent)
    , m_enumList(new UiDataEnums(this))
    , m_enumMap(new QQmlPropertyMap(this))
{
    QQmlEngine::setObjectOwnership(m_enumMap, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(m_enumList, QQmlEngine::CppOwnership);
    connect(m_enumList, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    // A range is set in two steps; the validator waits until both are done.
    connect(this, &UiData::minRangeChanged, this, &UiData::slotValidatorUpdate, Qt::QueuedConnection);
    connect(this, &UiData::maxRangeChanged, this, &UiData::slotValidatorUpdate, Qt::QueuedConnection);
    connect(this, &UiData::regexChanged, this, &UiData::slotValidatorUpdate);
}

UiData::~UiData()
{
    UiDataContainer::shared();
    while (!m_containers.isEmpty())
        m_containers.constLast()->removeItem(this);
    // The context holds a plain pointer.
    const QString id = getRegisterId();
    if (m_rootContext && m_rootContext->isValid() && !id.isEmpty()
            && m_rootContext->contextProperty(id).value<QObject*>() == this)
        m_rootContext->setContextProperty(id, nullptr);
}

// --- Attributes ----------------------------------------------------------------------------------

void UiData::setAttributes(const QMap<QString, QVariant>& attributes)
{
    if (attributes != m_attributes)
        m_attributes = attributes;
    tellContainers();
    const QPointer<UiData> self(this);
    slotValidatorUpdate();
    if (self)
        adoptFormatter(getAttr(keys::formatter).toString());
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
    m_attributes.insert(keys::type, type);
    if (m_isBeingDeclared)
        holdValue(declared(getValue()));
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
    m_attributes.insert(keys::label, label);
    Q_EMIT labelChanged();
}

QString UiData::getRegex() const
{
    return getAttr(keys::regex).toString();
}

void UiData::setRegex(const QString& regex)
{
    m_attributes.insert(keys::regex, regex);
    Q_EMIT regexChanged();
}

QVariant UiData::getMinRange() const
{
    return getAttr(keys::minRange);
}

void UiData::setMinRange(const QVariant& minimum)
{
    m_attributes.insert(keys::minRange, uiutils::plainValue(minimum));
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
    m_attributes.insert(keys::maxRange, uiutils::plainValue(maximum));
    const QPointer<UiData> self(this);
    Q_EMIT maxRangeChanged();
    if (self)
        Q_EMIT rangeDescriptionChanged();
}

void UiData::setPrecision(unsigned precision)
{
    m_attributes.insert(keys::precision, precision);
    updateValidator();
    Q_EMIT precisionChanged();
}

void UiData::setInputType(unsigned inputType)
{
    m_attributes.insert(keys::inputType, inputType);
    Q_EMIT inputTypeChanged();
}

QString UiData::getRegisterId() const
{
    return getAttr(keys::registerId).toString();
}

void UiData::setRegisterId(const QString& id)
{
    if (m_attributes.contains(keys::registerId)) {
        qWarning("registerId already exsist!");
        return;
    }
    m_attributes.insert(keys::registerId, id);
}

bool UiData::isReadOnly() const
{
    return getAttr(keys::readOnly).toBool();
}

void UiData::setReadOnly(bool readOnly)
{
    m_attributes.insert(keys::readOnly, readOnly);
    Q_EMIT readOnlyChanged();
}

bool UiData::isReady() const
{
    return m_attributes.value(keys::ready, true).toBool();
}

void UiData::setReady(bool ready)
{
    m_attributes.insert(keys::ready, ready);
    const QPointer<UiData> self(this);
    Q_EMIT isReadyChanged();
    if (self)
        Q_EMIT KivData::isReadyChanged();
}

bool UiData::isApplicable()
{
    return m_attributes.value(keys::applicable, true).toBool();
}

void UiData::setApplicable(bool applicable)
{
    m_attributes.insert(keys::applicable, applicable);
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
    m_attributes.insert(keys::persistent, persistent);
}

bool UiData::isMandatory() const
{
    return getAttr(keys::mandatory).toBool();
}

void UiData::setMandatory(bool mandatory)
{
    const bool isChange = mandatory != isMandatory();
    m_attributes.insert(keys::mandatory, mandatory);
    tellContainers();
    if (isChange)
        Q_EMIT mandatoryChanged();
}

bool UiData::isValueOk() const
{
    return m_attributes.value(keys::valueOk, true).toBool();
}

void UiData::setValueOk(bool valueOk)
{
    const bool isChange = valueOk != isValueOk();
    m_attributes.insert(keys::valueOk, valueOk);
    tellContainers();
    if (isChange)
        Q_EMIT valueOkChanged();
}

void UiData::tellContainers()
{
    const bool isHindrance = isMandatory() && !isValueOk();
    if (isHindrance == m_isHindrance)
        return;
    m_isHindrance = isHindrance;
    for (UiDataContainer* container : qAsConst(m_containers))
        container->countHindrance(isHindrance ? 1 : -1);
}

int UiData::getQualityCode() const
{
    return getAttr(keys::qualityCode).toInt();
}

void UiData::setQuality(int code)
{
    m_attributes.insert(keys::qualityCode, code);
    Q_EMIT qualityCodeChanged();
}

void UiData::setQualityNone()
{
    setQuality(uiutils::Status::None);
}

void UiData::setPassing()
{
    setQuality(uiutils::Status::Pass);
}

void UiData::setWarning()
{
    setQuality(uiutils::Status::Marginal);
}

void UiData::setFailing()
{
    setQuality(uiutils::Status::Fail);
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

void UiData::setUiEnumList(UiDataEnums* list)
{
    if (list == m_enumList)
        return;
    if (m_enumList)
        disconnect(m_enumList, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    m_enumList = list;
    const QPointer<UiData> self(this);
    if (list)
        connect(list, &UiDataEnums::itemsChanged, this, &UiData::slotEnumUpdate);
    if (getType() != TYPE_ENUM) {
        setType(TYPE_ENUM);
        if (self)
            Q_EMIT typeChanged();
    }
    // One that is still being filled tells when it is done.
    if (self && (!m_enumList || m_enumList->isComplete()))
        slotEnumUpdate();
}

void UiData::setEnums(const QList<int>& values, const QStringList& labels, const QStringList& names)
{
    if (!m_enumList)
        return;
    for (int i = 0; i < values.size(); ++i)
        m_enumList->append(new UiEnumType(m_enumList, labels.value(i), names.value(i), values.at(i), true));
    m_enumList->componentComplete();
}

void UiData::setEnums(const QList<int>& values, const QStringList& labels)
{
    setEnums(values, labels, QStringList());
}

void UiData::slotEnumUpdate()
{
    const QStringList known = m_enumMap->keys();
    for (const QString& key : known)
        m_enumMap->clear(key);
    m_enumLabels.clear();
    m_enumValues.clear();
    const QList<UiEnumType*> choices = m_enumList ? m_enumList->getEnumList() : QList<UiEnumType*>();
    for (const UiEnumType* choice : choices) {
        if (!choice->getName().isEmpty())
            m_enumMap->insert(choice->getName(), choice->getValue());
        m_enumLabels.append(choice->getLabel());
        m_enumValues.append(choice->getValue());
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
    return getType() == TYPE_BOOL ? 2 : m_enumValues.size();
}

QString UiData::enumLabel(int const& enumVal)
{
    if (getType() == TYPE_BOOL)
        return enumVal == 0 ? tr("False") : enumVal == 1 ? tr("True") : QString();
    return m_enumLabels.value(enumVal);
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
    return m_enumValues.value(enumVal, -1);
}

int UiData::enumIndex(int const& enumVal)
{
    if (getType() == TYPE_BOOL)
        return isWithin(enumVal, 2) ? enumVal : -1;
    return m_enumValues.indexOf(enumVal);
}

bool UiData::applicableAt(int const& i)
{
    if (getType() == TYPE_BOOL)
        return isWithin(i, 2);
    const UiEnumType* choice = m_enumList ? m_enumList->at(i) : nullptr;
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
    return m_declarer ? m_declarer.data() : parent();
}

void UiData::classBegin()
{
    m_isBeingDeclared = true;
}

void UiData::componentComplete()
{
    m_isBeingDeclared = false;
    QQmlEngine* engine = qmlEngine(this);
    if (!engine) {
        qWarning("registerId is used for context property name in a engine");
        return;
    }
    // The container becomes the parent, but the item is no older than the page.
    m_declarer = parent();
    if (m_declarer)
        connect(m_declarer, &QObject::destroyed, this, [this] { delete this; });
    const QPointer<UiData> self(this);
    UiDataContainer::shared()->addItem(this);
    if (self)
        registerInEngine(engine->rootContext());
    if (!self || !isVector() || !m_elements.isEmpty() || getValue().toString().isEmpty())
        return;
    updateVectorValue();
    Q_EMIT valueCountChanged();
}

void UiData::registerInEngine(QQmlContext* rootContext)
{
    m_rootContext = rootContext;
    const QString id = getRegisterId();
    if (!id.isEmpty())
        rootContext->setContextProperty(id, this);
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
