#include "service/kivdata.h"

#include "core/itemids.h"
#include "core/plainvalue_p.h"
#include "core/status.h"
#include "service/announcement_p.h"
#include "service/applicability_p.h"
#include "service/enumnames_p.h"
#include "service/inputrange_p.h"
#include "service/inputvalidator_p.h"
#include "service/manifest.h"

#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivvecclientitem.h>

#include <QQmlContext>
#include <QQmlExpression>
#include <QStringBuilder>

#include <cstdio>

KivData::KivData(QObject* parent)
    : QObject(parent)
{
}

KivData::KivData(KIVClientItem* item, Manifest* manifest)
    : QObject(manifest)
    , m_item(item)
{
    if (!item)
        return;
    m_id = item->getId();
    m_value = item->getValue();
    createFormatter();
    connectItem();
}

KivData::~KivData()
{
    if (m_announcing)
        m_announcing->abandon();
    Manifest::forget(m_id, this);
}

// --- The item ------------------------------------------------------------------------------------

void KivData::connectItem()
{
    m_isBound = true;
    m_isVector = qobject_cast<KIVVecClientItem*>(m_item);
    const QString type = m_item->getTypeName();
    m_isText = type == uiutils::textType;
    m_isReal = type == uiutils::realType;
    connect(m_item, &KIVClientItem::valueChanged, this, &KivData::slotValueChanged);
    connect(m_item, &KIVClientItem::unitsChanged, this, &KivData::slotUnitsChanged);
    connect(m_item, &KIVClientItem::isReadyChanged, this, &KivData::slotIsReadyChanged);
    connect(m_item, &KIVClientItem::qualityChanged, this, &KivData::slotQualityChanged);
    connect(m_item, &KIVClientItem::isApplicableChanged, this, &KivData::slotApplicChanged);
    if (const KIVEnumChoicesClientItem* choices = uiutils::choicesOf(m_item))
        connect(choices, &KIVEnumChoicesClientItem::valueChanged, this, &KivData::slotChoicesChanged);
}

void KivData::bindItem(KIVClientItem* item)
{
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    m_isBound = false;
    delete m_expression;
    m_expression = nullptr;
    m_isExpressionRefused = false;
    if (item) {
        createFormatter();
        updateValidator();
        connectItem();
    }
    announceItem();
}

/// Everything may be different with another item. A pending change stays, since the user has not taken it back, unless
/// the service comes with another value, which is a report.
void KivData::announceItem()
{
    const QPointer<KivData> self(this);
    const auto stillHere = [&] { return !self.isNull(); };
    slotUnitsChanged();
    if (stillHere())
        slotQualityChanged();
    if (stillHere())
        slotChoicesChanged();
    if (stillHere())
        slotApplicChanged();
    if (stillHere())
        Q_EMIT isReadyChanged();
    if (stillHere())
        Q_EMIT precisionChanged();
    if (!stillHere())
        return;
    const bool isTable = qobject_cast<KivListAggregateClientItem*>(m_item);
    const QVariant value = m_item ? m_item->getValue() : QVariant();
    const bool isAnother = value.isValid() && !uiutils::isSameValue(value, m_reported);
    const bool isReport = m_item && (!isPending() || isAnother);
    if (isReport)
        slotValueChanged();
    if (stillHere() && (!isReport || isTable))
        Q_EMIT valueChanged();
}

Manifest* KivData::manifest() const
{
    return qobject_cast<Manifest*>(parent());
}

KIVClientInterface* KivData::getClient() const
{
    const Manifest* owner = manifest();
    return owner ? owner->client() : nullptr;
}

// --- What the item is ----------------------------------------------------------------------------

QString KivData::getQmlTag() const
{
    return m_item ? contextName() : QString();
}

QString KivData::contextName() const
{
    const Manifest* owner = manifest();
    if (m_id.isEmpty() || !owner)
        return QString();
    const QLatin1String kind = m_id.startsWith(QLatin1String(":act")) ? QLatin1String("act")
            : m_id.startsWith(QLatin1String(":res"))                  ? QLatin1String("res")
            : m_id.startsWith(QLatin1String(":con"))                  ? QLatin1String("cfg")
                                                                      : QLatin1String();
    const QString name = m_item ? m_item->getName() : uiutils::itemids::nameOf(m_id);
    return owner->getQmlTag() % QLatin1Char('_') % kind % QLatin1Char('_') % name;
}

QString KivData::getId() const
{
    return m_id;
}

QString KivData::getName() const
{
    return m_item ? m_item->getName() : QString();
}

QString KivData::getType() const
{
    return m_item ? m_item->getTypeName() : QString();
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
    // The property is written by pages that also serve local items; a service keeps its own.
}

QString KivData::getLabel() const
{
    return m_item ? m_item->getLabel() : QString();
}

QString KivData::getRegex() const
{
    const QString regex = getAttr(QStringLiteral("regex")).toString();
    return regex.isEmpty() ? uiutils::lengthExpression(getMinRange(), getMaxRange()) : regex;
}

QVariant KivData::getMinRange() const
{
    return m_item ? m_item->getMinRange() : QVariant();
}

QVariant KivData::getMaxRange() const
{
    return m_item ? m_item->getMaxRange() : QVariant();
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

/// Made when it is first asked for: most items are never edited.
QValidator* KivData::getValidator() const
{
    return m_validator || !m_id.isEmpty() ? currentValidator() : nullptr;
}

QValidator* KivData::currentValidator() const
{
    if (!m_validator)
        m_validator = uiutils::createValidator(currentRule(), const_cast<KivData*>(this));
    return m_validator;
}

/// While the service is away an entry is held to what kind of value it is: the limits come with the service.
uiutils::InputRule KivData::currentRule() const
{
    if (m_item || m_id.isEmpty())
        return inputRule();
    return uiutils::openRule(m_isText ? uiutils::textType : m_isReal ? uiutils::realType : QLatin1String());
}

uiutils::InputRule KivData::inputRule() const
{
    return {getType(), getRegex(), getMinRange(), getMaxRange(), getPrecision()};
}

/// Entry fields hold the validator as long as the wrapper lives, so it takes the new rule over. One of another kind
/// stays beside its successor.
void KivData::updateValidator()
{
    if (m_validator && !uiutils::applyRule(inputRule(), m_validator))
        m_validator = nullptr;
}

void KivData::renewValidator()
{
    // An entry field takes leave of the old one only when it hears of the new one.
    if (m_validator)
        m_validator->deleteLater();
    m_validator = nullptr;
    currentValidator();
}

BaseFormatter* KivData::getBaseFormatter() const
{
    return m_formatter;
}

/// There from the start, because the item that names it may vanish.
void KivData::createFormatter()
{
    if (getType() == uiutils::textType)
        return;
    const QString name = getAttr(QStringLiteral("formatter")).toString();
    if (name.isEmpty() || !getAttr(QStringLiteral("enum")).toString().isEmpty())
        return;
    // QML may still hold the one of another name, which stays as long as the wrapper.
    if (m_formatter && m_formatter->objectName() != name)
        m_formatter = nullptr;
    adoptFormatter(name);
    const QVariant precision = getAttr(QStringLiteral("precision"));
    if (m_formatter && !precision.isNull())
        m_formatter->setPrecision(precision.toInt());
}

void KivData::adoptFormatter(const QString& name)
{
    if (m_formatter || name.isEmpty())
        return;
    m_formatter = getFormatter(name);
    if (!m_formatter)
        return;
    m_formatter->setParent(this);
    m_formatter->setObjectName(name);
    m_formatter->setValue(m_value);
}

QVariant KivData::getProperty(QString const& prop) const
{
    return getAttr(prop);
}

QVariant KivData::getAttr(QString const& key) const
{
    return m_item ? m_item->getAttribute(key) : QVariant();
}

bool KivData::isReadOnly() const
{
    return !getId().startsWith(QLatin1String(":config"));
}

bool KivData::isReady() const
{
    return m_item && m_item->isReady();
}

// Platforms are replaced as a whole, and pages and reports read their codes by our names.
static_assert(int(KIVClientItem::QualityNone) == uiutils::Status::None
        && int(KIVClientItem::QualityPassing) == uiutils::Status::Pass
        && int(KIVClientItem::QualityWarning) == uiutils::Status::Marginal
        && int(KIVClientItem::QualityFailing) == uiutils::Status::Fail);

int KivData::getQualityCode() const
{
    return m_item ? m_item->getQualityCode() : 0;
}

QString KivData::getError() const
{
    return m_error;
}

// --- Applicability -------------------------------------------------------------------------------

bool KivData::isApplicable()
{
    if (!m_item)
        return true;
    const QString expression = m_item->getApplicableExpr();
    if (expression.isEmpty())
        return m_item->isApplicable();
    compileApplicability(expression);
    if (getId().startsWith(QLatin1String(":action:")))
        return true;
    if (m_isExpressionRefused)
        return false;
    return !m_expression || evaluateApplicability();
}

void KivData::compileApplicability(const QString& expression)
{
    if (m_expression && !m_expression->context()) {
        delete m_expression;
        m_expression = nullptr;
    }
    const Manifest* owner = manifest();
    QQmlContext* context = Manifest::qmlContext();
    if (m_expression || m_isExpressionRefused || expression == QLatin1String("true") || !owner || !context)
        return;

    QString problem;
    const std::optional<QString> translated
            = uiutils::translatedApplicability(expression, owner->getQmlTag(), &problem);
    if (!translated) {
        m_isExpressionRefused = true;
        reportExpressionError(problem);
        return;
    }
    m_expression = new QQmlExpression(context, this, *translated, this);
    connect(m_expression, &QQmlExpression::valueChanged, this, &KivData::slotApplicChanged);
    m_expression->setNotifyOnValueChanged(true);
}

bool KivData::evaluateApplicability()
{
    const bool result = m_expression->evaluate().toBool();
    if (!m_expression->hasError())
        return result;
    reportExpressionError(m_expression->error().toString());
    m_expression->clearError();
    return false;
}

void KivData::reportExpressionError(const QString& problem) const
{
    std::printf("Applicable expression error: %s %s\n", qPrintable(getName()), qPrintable(problem));
    std::fflush(stdout);
}

// --- Reports of the item -------------------------------------------------------------------------

void KivData::settleReport()
{
    const bool isPendingOrSent = m_changed || m_sent;
    if (isPendingOrSent && m_id.startsWith(QLatin1String(":config")))
        endChange();
}

void KivData::slotValueChanged()
{
    settleReport();
    if (!m_item)
        return;
    holdReport(m_item->getValue());
    announceValue();
}

void KivData::slotUnitsChanged()
{
    Q_EMIT unitsChanged();
}

void KivData::slotChoicesChanged()
{
    if (m_enums)
        m_enums->deleteLater();
    m_enums = nullptr;
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
