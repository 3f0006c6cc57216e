// The part of KivData that holds and writes values, their elements and the choices among them.

#include "service/kivdata.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "core/userdata.h"
#include "service/announcement_p.h"
#include "service/enumnames_p.h"
#include "service/manifest.h"
#include "service/valuetext_p.h"

#include <kiv/kivenumclientitem.h>

#include <QtDebug>

#include <utility>

using uiutils::choicesOf;
using uiutils::isWithin;

// --- The value -----------------------------------------------------------------------------------

QVariant KivData::getValue() const
{
    return m_value;
}

QString KivData::getValueString(bool showUnits) const
{
    if (m_item)
        return m_item->getValueString(showUnits);
    BaseFormatter* formatter = getBaseFormatter();
    return formatter ? uiutils::formattedText(*formatter, m_value, showUnits)
                     : uiutils::plainText(m_value, getPrecision());
}

QString KivData::getValueStringNoUnits() const
{
    return getValueString(false);
}

QString KivData::getUnitString() const
{
    if (m_item)
        return m_item->getUnitString();
    const BaseFormatter* formatter = getBaseFormatter();
    return formatter ? formatter->getUnitString() : QString();
}

void KivData::setValue(QVariant value)
{
    if (!getClient() || isReadOnly())
        return;
    value = uiutils::plainValue(value);
    const KIVEnumChoicesClientItem* choices = choicesOf(m_item);
    if (choices && !choices->contains(value.toInt())) {
        refuse(QStringLiteral("Invalid enum value %1").arg(value.toInt()));
        return;
    }
    writeValue(value);
}

bool KivData::writeValue(QVariant value)
{
    // A page finds a number where it wrote the text of one.
    const QVariant reported = reportedValue();
    value = uiutils::readValue(value, reported.userType());
    if (!mayWrite(!uiutils::isSameValue(value, m_value)))
        return false;
    const Manifest* owner = manifest();
    if (owner && owner->isChanging()) {
        m_reported = reported;
        m_changed = true;
        m_sent = false;
        m_previous = m_value;
        setValueInternal(value);
        return true;
    }
    const QPointer<KivData> self(this);
    KIVClientInterface* client = getClient();
    const unsigned reports = m_reports;
    const bool isTaken = client && client->setItem(getId(), value);
    if (!self)
        return true;
    if (!isTaken)
        checkAppError();
    else if (m_reports == reports)
        setValueInternal(value);
    return true;
}

/// What the service said last, which a pending change hides.
QVariant KivData::reportedValue() const
{
    if (m_item)
        return m_item->getValue();
    return isPending() ? m_reported : m_value;
}

void KivData::holdValue(QVariant value)
{
    m_value = std::move(value);
    if (m_formatter)
        m_formatter->setValue(m_value);
}

void KivData::setValueInternal(QVariant& value)
{
    holdValue(value);
    announceValue();
}

void KivData::holdReport(const QVariant& value)
{
    ++m_reports;
    holdValue(value);
}

void KivData::announceValue()
{
    announce({&KivData::announceCount, &KivData::announceSelection, &KivData::valueChanged});
}

void KivData::announce(std::initializer_list<void (KivData::*)()> steps)
{
    if (isStopped())
        return;
    if (isBeingTold()) {
        uiutils::Announcement::countReturn();
        m_announcing->add(steps);
        return;
    }
    uiutils::Announcement announcement(steps, m_announcing);
    const unsigned outerChain = m_toldIn;
    const bool wasStopped = m_isStopped;
    m_announcing = &announcement;
    enterChain();
    while (announcement.beginRound()) {
        for (const uiutils::Announcement::Step step : announcement.steps()) {
            (this->*step)();
            // A slot may delete the wrapper.
            if (announcement.isAbandoned())
                return;
        }
    }
    m_announcing = announcement.outer();
    if (!m_announcing)
        return;
    m_toldIn = outerChain;
    m_isStopped = wasStopped;
}

/// Not for the event loop of a handler: what is told out there goes on when that ends.
bool KivData::isBeingTold() const
{
    return m_announcing && m_announcing->isCurrent();
}

bool KivData::mayWrite(bool isChange)
{
    // Items that mirror each other would else be told over every way from one to the other.
    if (isChange || !isKnownToChain())
        return !isStopped();
    uiutils::Announcement::countReturn();
    return false;
}

/// Whether the item was told, or stopped, since the first of the announcements on the stack.
bool KivData::isKnownToChain() const
{
    const unsigned chain = uiutils::Announcement::chain();
    return chain != 0 && m_toldIn == chain;
}

void KivData::enterChain()
{
    if (isKnownToChain())
        return;
    m_toldIn = uiutils::Announcement::chain();
    m_isStopped = false;
}

/// Whether the handlers have had their rounds. Of handlers that set each other going, each is stopped, and named, once.
bool KivData::isStopped()
{
    if (isKnownToChain() && m_isStopped) {
        uiutils::Announcement::countReturn();
        return true;
    }
    const bool hasHadRounds = isBeingTold() && m_announcing->isLastRound();
    if (!hasHadRounds && !uiutils::Announcement::isExhausted())
        return false;
    enterChain();
    m_isStopped = true;
    qWarning("The value of %s does not settle: a handler of its change, or of another item's, writes another one each "
             "time. It was stopped after %d %s; let the handler write a value that stays.",
            qUtf8Printable(getId()),
            hasHadRounds ? uiutils::Announcement::mostRounds : uiutils::Announcement::mostReturns,
            hasHadRounds ? "rounds" : "writes of items that handlers had come from");
    return true;
}

void KivData::announceCount()
{
    if (m_isVector)
        Q_EMIT valueCountChanged();
}

void KivData::announceSelection()
{
    if (!m_followsUserData)
        return;
    const int selection = getArraySelection();
    const QString text = getArraySelectionString();
    if (selection == m_selection && text == m_selectionText)
        return;
    m_selection = selection;
    m_selectionText = text;
    Q_EMIT arraySelectionChanged();
}

bool KivData::endChange()
{
    const bool wasPending = isPending();
    m_changed = false;
    m_sent = false;
    return wasPending;
}

void KivData::apply()
{
    if (!endChange())
        return;
    const QPointer<KivData> self(this);
    QVariant value = m_value;
    const QPointer<KIVClientInterface> client = getClient();
    const unsigned reports = m_reports;
    const bool isRefused = client && !client->setItem(getId(), value);
    const QString error = isRefused && client ? client->getLastError() : QString();
    if (!self)
        return;
    // What was refused stays pending, so that it can be mended or taken back.
    m_changed = isRefused && m_reports == reports;
    if (m_reports == reports)
        setValueInternal(value);
    if (self && isRefused)
        refuse(error);
}

void KivData::revert()
{
    if (!endChange())
        return;
    QVariant previous = m_previous;
    setValueInternal(previous);
}

void KivData::checkAppError()
{
    if (const KIVClientInterface* client = getClient())
        refuse(client->getLastError());
}

void KivData::refuse(const QString& error)
{
    m_error = error;
    Q_EMIT errorChanged(getName(), error);
}

void KivData::invoke()
{
    const QPointer<KivData> self(this);
    KIVClientInterface* client = getClient();
    if (client && !client->invokeAction(getId()) && self)
        checkAppError();
}

QString KivData::invokeWithStringArg(QString const& arg)
{
    QString reply;
    const QPointer<KivData> self(this);
    KIVClientInterface* client = getClient();
    if (client && !client->sendAction(getId(), arg, &reply, KIVClientInterface::callTimeout) && self)
        checkAppError();
    return reply;
}

// --- Elements of an array ------------------------------------------------------------------------

/// Without making a list of variants of a list of texts, for each element.
QVariant KivData::variantAt(int ind) const
{
    if (!isWithin(ind, getValueCount()))
        return QVariant();
    return m_value.type() == QVariant::StringList ? QVariant(m_value.toStringList().at(ind)) : m_value.toList().at(ind);
}

QVariant KivData::at(int ind) const
{
    return variantAt(ind);
}

QVariant KivData::getArrayValue(int index) const
{
    return variantAt(index);
}

void KivData::setAt(int ind, QVariant const& val)
{
    if (!isWithin(ind, getValueCount()))
        return;
    QVariantList list = m_value.toList();
    list[ind] = uiutils::plainValue(val);
    QVariant value = list;
    if (m_value.type() == QVariant::StringList)
        value.convert(QVariant::StringList);
    setValue(value);
}

int KivData::getValueCount() const
{
    if (!m_isVector)
        return 0;
    return m_value.type() == QVariant::StringList ? m_value.toStringList().size() : m_value.toList().size();
}

QString KivData::arraySelectionKey() const
{
    return getId() + QLatin1String(":array_selection:");
}

/// Selections are shared by all wrappers of an id; only those that somebody asked for theirs listen.
void KivData::followUserData() const
{
    if (m_followsUserData)
        return;
    m_followsUserData = true;
    auto* self = const_cast<KivData*>(this);
    connect(UserData::getInstance(), &UserData::signalDataChanged, self, [self](const QString& key) {
        if (key == self->arraySelectionKey())
            self->announceSelection();
    });
    self->m_selection = getArraySelection();
    self->m_selectionText = getArraySelectionString();
}

int KivData::getArraySelection() const
{
    followUserData();
    const int count = getValueCount();
    const QVariant kept = UserData::getInstance()->getData(arraySelectionKey());
    if (kept.isValid() && isWithin(kept.toInt(), count))
        return kept.toInt();
    return count > 0 ? 0 : -1;
}

void KivData::setArraySelection(int index)
{
    if (isWithin(index, getValueCount()) && index != getArraySelection())
        UserData::getInstance()->setData(arraySelectionKey(), index);
}

QString KivData::getArraySelectionString() const
{
    return variantAt(getArraySelection()).toString();
}

// --- Choices of an enumeration -------------------------------------------------------------------

QObject* KivData::getEnums() const
{
    const KIVEnumChoicesClientItem* choices = choicesOf(m_item);
    if (!m_enums && choices)
        m_enums = uiutils::EnumNames::create(*choices, const_cast<KivData*>(this));
    return m_enums;
}

int KivData::getEnumCount() const
{
    const KIVEnumChoicesClientItem* choices = choicesOf(m_item);
    return choices ? choices->count() : 0;
}

QString KivData::enumLabel(int const& index)
{
    return isWithin(index, getEnumCount()) ? choicesOf(m_item)->labelAt(index) : QString();
}

QString KivData::enumLabelForValue(int const& index)
{
    const KIVEnumChoicesClientItem* choices = choicesOf(m_item);
    return choices && choices->contains(index) ? choices->labelForValue(unsigned(index)) : QString();
}

int KivData::enumValue(int const& index)
{
    return isWithin(index, getEnumCount()) ? choicesOf(m_item)->valueAt(index) : -1;
}

int KivData::enumIndex(int const& value)
{
    const KIVEnumChoicesClientItem* choices = choicesOf(m_item);
    return choices ? choices->indexOf(value) : -1;
}

bool KivData::applicableAt(int const& index)
{
    return isWithin(index, getEnumCount()) && choicesOf(m_item)->isApplicableAt(index);
}
