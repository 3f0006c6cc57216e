// The part of UiData that has the attributes of an item, and what follows from them.

#include "local/uidata_p.h"

#include "core/plainvalue_p.h"
#include "core/status.h"
#include "local/attributekeys_p.h"
#include "local/uidatacontainer_p.h"

#include <QtDebug>

namespace keys = uiutils::attributekeys;
using uiutils::UiDataContainerPrivate;
using uiutils::UiDataPrivate;

void UiData::setAttributes(const QMap<QString, QVariant>& attributes)
{
    if (attributes != d->attributes)
        d->attributes = attributes;
    d->updateContainers();
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
    // QML sets properties in the order in which they are written, the type perhaps after the expression.
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
    d->updateContainers();
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
    d->updateContainers();
    if (isChange)
        Q_EMIT valueOkChanged();
}

void UiDataPrivate::updateContainers()
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
