#include "service/kivdata_p.h"

#include "core/itemids_p.h"
#include "core/plainvalue_p.h"
#include "core/status.h"
#include "service/announcement_p.h"
#include "service/changewatch_p.h"
#include "service/enumnames_p.h"
#include "service/inputrange_p.h"
#include "service/inputvalidator_p.h"
#include "service/itemregistry_p.h"
#include "service/manifeststate_p.h"

#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivvecclientitem.h>

#include <QQmlExpression>
#include <QStringBuilder>

#include <utility>

using uiutils::KivDataPrivate;

KivDataPrivate::KivDataPrivate() = default;
KivDataPrivate::~KivDataPrivate() = default;

KivData::KivData(QObject* parent)
    : KivData(std::make_unique<KivDataPrivate>(), parent)
{
}

KivData::KivData(KIVClientItem* item, Manifest* manifest)
    : KivData(std::make_unique<KivDataPrivate>(), item, manifest)
{
}

KivData::KivData(std::unique_ptr<KivDataPrivate> parts, QObject* parent)
    : QObject(parent)
    , d(std::move(parts))
{
    d->q = this;
}

KivData::KivData(std::unique_ptr<KivDataPrivate> parts, KIVClientItem* item, Manifest* manifest)
    : KivData(std::move(parts), uiutils::toObject(manifest))
{
    d->item = item;
    if (!item)
        return;
    d->id = item->getId();
    d->value = item->getValue();
    d->createFormatter();
    d->connectItem();
}

KivData::~KivData()
{
    if (d->announcing)
        d->announcing->abandon();
    uiutils::itemregistry::forget(d->id, this);
    uiutils::ChangeWatch* watch = uiutils::ChangeWatch::current();
    if (!watch || !watch->noteEnd(this))
        return;
    // Whoever hears of it may delete the parent.
    setParent(nullptr);
    uiutils::ChangeWatch::flush();
}

// --- The item ------------------------------------------------------------------------------------

void KivDataPrivate::connectItem()
{
    isBound = true;
    isVector = qobject_cast<KIVVecClientItem*>(item);
    const QString type = item->getTypeName();
    isText = type == uiutils::textType;
    isReal = type == uiutils::realType;
    QObject::connect(item, &KIVClientItem::valueChanged, q, &KivData::slotValueChanged);
    QObject::connect(item, &KIVClientItem::unitsChanged, q, &KivData::slotUnitsChanged);
    QObject::connect(item, &KIVClientItem::isReadyChanged, q, &KivData::slotIsReadyChanged);
    QObject::connect(item, &KIVClientItem::qualityChanged, q, &KivData::slotQualityChanged);
    QObject::connect(item, &KIVClientItem::isApplicableChanged, q, &KivData::slotApplicChanged);
    if (const KIVEnumChoicesClientItem* choices = uiutils::choicesOf(item))
        QObject::connect(choices, &KIVEnumChoicesClientItem::valueChanged, q, &KivData::slotChoicesChanged);
}

void KivDataPrivate::bindItem(KIVClientItem* other)
{
    if (item)
        item->disconnect(q);
    item = other;
    isBound = false;
    delete expression;
    expression = nullptr;
    isExpressionRejected = false;
    if (item) {
        createFormatter();
        q->updateValidator();
        connectItem();
    }
    if (ChangeWatch* watch = ChangeWatch::current())
        watch->noteItem(q);
    announceItem();
}

/// Everything may be different with another item. A pending change stays, because the user has not undone it, unless
/// the service returns with another value, which is a report.
void KivDataPrivate::announceItem()
{
    const QPointer<KivData> self(q);
    const auto stillHere = [&] { return !self.isNull(); };
    q->slotUnitsChanged();
    if (stillHere())
        q->slotQualityChanged();
    if (stillHere())
        q->slotChoicesChanged();
    if (stillHere())
        q->slotApplicChanged();
    if (stillHere())
        Q_EMIT q->isReadyChanged();
    if (stillHere())
        Q_EMIT q->precisionChanged();
    if (!stillHere())
        return;
    const bool isTable = qobject_cast<KivListAggregateClientItem*>(item);
    const QVariant current = item ? item->getValue() : QVariant();
    const bool isAnother = current.isValid() && !uiutils::isSameValue(current, reported);
    const bool isReport = item && (!isPending() || isAnother);
    if (isReport)
        q->slotValueChanged();
    if (stillHere() && (!isReport || isTable))
        Q_EMIT q->valueChanged();
}

KIVClientItem* KivData::item() const
{
    return d->item;
}

Manifest* KivData::manifest() const
{
    return uiutils::toManifest(parent());
}

KIVClientInterface* KivData::getClient() const
{
    const uiutils::ManifestState* owner = uiutils::manifestState(parent());
    return owner ? owner->client.data() : nullptr;
}

// --- What the item is ----------------------------------------------------------------------------

QString KivData::getQmlTag() const
{
    return d->item ? d->contextName() : QString();
}

QString KivDataPrivate::contextName() const
{
    const ManifestState* owner = manifestState(q->parent());
    if (id.isEmpty() || !owner)
        return QString();
    const QLatin1String kind = id.startsWith(QLatin1String(":act")) ? QLatin1String("act")
            : id.startsWith(QLatin1String(":res"))                  ? QLatin1String("res")
            : id.startsWith(QLatin1String(":con"))                  ? QLatin1String("cfg")
                                                                    : QLatin1String();
    const QString name = item ? item->getName() : uiutils::itemids::nameOf(id);
    return owner->qmlTag % QLatin1Char('_') % kind % QLatin1Char('_') % name;
}

QString KivData::getId() const
{
    return d->id;
}

QString KivData::getName() const
{
    return d->item ? d->item->getName() : QString();
}

QString KivData::getType() const
{
    return d->item ? d->item->getTypeName() : QString();
}

unsigned KivData::getInputType() const
{
    return getAttr(QStringLiteral("inputType")).toUInt();
}

unsigned KivData::getPrecision() const
{
    return getAttr(QStringLiteral("precision")).toUInt();
}

void KivData::setPrecision(unsigned)
{
    // Pages that also serve local items write the property; a service keeps its own precision.
}

QString KivData::getLabel() const
{
    return d->item ? d->item->getLabel() : QString();
}

QString KivData::getRegex() const
{
    const QString regex = getAttr(QStringLiteral("regex")).toString();
    return regex.isEmpty() ? uiutils::lengthExpression(getMinRange(), getMaxRange()) : regex;
}

QVariant KivData::getMinRange() const
{
    return d->item ? d->item->getMinRange() : QVariant();
}

QVariant KivData::getMaxRange() const
{
    return d->item ? d->item->getMaxRange() : QVariant();
}

QString KivData::getRangeDescription() const
{
    uiutils::InputRange range;
    range.minimum = getMinRange();
    range.maximum = getMaxRange();
    range.inputType = getInputType();
    range.type = getType();
    range.precision = getPrecision();
    range.formatter = getBaseFormatter();
    return uiutils::rangeDescription(range);
}

/// Created by the first request: most items are never edited.
QValidator* KivData::getValidator() const
{
    return d->validator || !d->id.isEmpty() ? currentValidator() : nullptr;
}

QValidator* KivData::currentValidator() const
{
    if (!d->validator)
        d->validator = uiutils::createValidator(d->currentRule(), const_cast<KivData*>(this));
    return d->validator;
}

/// While the service is away an entry only has to be of the right type: the limits come with the service.
uiutils::InputRule KivDataPrivate::currentRule() const
{
    if (item || id.isEmpty())
        return inputRule();
    return uiutils::openRule(isText ? uiutils::textType : isReal ? uiutils::realType : QLatin1String());
}

uiutils::InputRule KivDataPrivate::inputRule() const
{
    return {q->getType(), q->getRegex(), q->getMinRange(), q->getMaxRange(), q->getPrecision()};
}

/// Entry fields use the validator as long as the wrapper exists, so it is given the new rule. If the rule needs another
/// kind, the old validator remains beside its successor.
void KivData::updateValidator()
{
    if (d->validator && !uiutils::applyRule(d->inputRule(), d->validator))
        d->validator = nullptr;
}

void KivData::renewValidator()
{
    // An entry field lets go of the old one only after it has been notified of the new one.
    if (d->validator)
        d->validator->deleteLater();
    d->validator = nullptr;
    currentValidator();
}

BaseFormatter* KivData::getBaseFormatter() const
{
    return d->formatter;
}

/// Created at the start, because the item that names it may vanish.
void KivDataPrivate::createFormatter()
{
    if (q->getType() == uiutils::textType)
        return;
    const QString name = q->getAttr(QStringLiteral("formatter")).toString();
    if (name.isEmpty() || !q->getAttr(QStringLiteral("enum")).toString().isEmpty())
        return;
    // QML may still use the one of another name, so that one stays as long as the wrapper.
    if (formatter && formatter->objectName() != name)
        formatter = nullptr;
    q->adoptFormatter(name);
    const QVariant precision = q->getAttr(QStringLiteral("precision"));
    if (formatter && !precision.isNull())
        formatter->setPrecision(precision.toInt());
}

void KivData::adoptFormatter(const QString& name)
{
    if (d->formatter || name.isEmpty())
        return;
    d->formatter = getFormatter(name);
    if (!d->formatter)
        return;
    d->formatter->setParent(this);
    d->formatter->setObjectName(name);
    d->formatter->setValue(d->value);
}

QVariant KivData::getProperty(QString const& prop) const
{
    return getAttr(prop);
}

QVariant KivData::getAttr(QString const& key) const
{
    return d->item ? d->item->getAttribute(key) : QVariant();
}

bool KivData::isReadOnly() const
{
    return !getId().startsWith(QLatin1String(":config"));
}

bool KivData::isReady() const
{
    return d->item && d->item->isReady();
}

// A platform may be replaced by another one, and pages and reports read its codes by our names.
static_assert(int(KIVClientItem::QualityNone) == uiutils::Status::None
        && int(KIVClientItem::QualityPassing) == uiutils::Status::Pass
        && int(KIVClientItem::QualityWarning) == uiutils::Status::Marginal
        && int(KIVClientItem::QualityFailing) == uiutils::Status::Fail);

int KivData::getQualityCode() const
{
    return d->item ? d->item->getQualityCode() : 0;
}

QString KivData::getError() const
{
    return d->error;
}

// --- Reports of the item -------------------------------------------------------------------------

void KivData::settleReport()
{
    const bool isPendingOrSent = d->isChanged || d->isSent;
    if (!isPendingOrSent || !d->id.startsWith(QLatin1String(":config")))
        return;
    uiutils::ChangeWatch* watch = uiutils::ChangeWatch::current();
    if (d->endChange() && watch)
        watch->noteReport(this, d->value);
}

void KivData::slotValueChanged()
{
    settleReport();
    if (!d->item)
        return;
    holdReport(d->item->getValue());
    d->announceValue();
    uiutils::ChangeWatch::flush();
}

void KivData::slotUnitsChanged()
{
    Q_EMIT unitsChanged();
}

void KivData::slotChoicesChanged()
{
    if (d->enums)
        d->enums->deleteLater();
    d->enums = nullptr;
    Q_EMIT enumCountChanged();
}

void KivData::slotIsReadyChanged()
{
    const QPointer<KivData> self(this);
    Q_EMIT isReadyChanged();
    if (self)
        Q_EMIT valueChanged();
}

void KivData::slotQualityChanged()
{
    Q_EMIT qualityCodeChanged();
}

void KivData::slotApplicChanged()
{
    Q_EMIT applicableChanged();
}
