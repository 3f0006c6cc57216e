// The part of KivData that holds and writes values, their elements and the choices among them.

#include "service/kivdata_p.h"

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
using uiutils::KivDataPrivate;

// --- The value -----------------------------------------------------------------------------------

QVariant KivData::getValue() const
{
    return d->value;
}

QString KivData::getValueString(bool showUnits) const
{
    if (d->item)
        return d->item->getValueString(showUnits);
    BaseFormatter* formatter = getBaseFormatter();
    return formatter ? uiutils::formattedText(*formatter, d->value, showUnits)
                     : uiutils::plainText(d->value, getPrecision());
}

QString KivData::getValueStringNoUnits() const
{
    return getValueString(false);
}

QString KivData::getUnitString() const
{
    if (d->item)
        return d->item->getUnitString();
    const BaseFormatter* formatter = getBaseFormatter();
    return formatter ? formatter->getUnitString() : QString();
}

void KivData::setValue(QVariant value)
{
    if (!getClient() || isReadOnly())
        return;
    value = uiutils::plainValue(value);
    const KIVEnumChoicesClientItem* choices = choicesOf(d->item);
    if (choices && !choices->contains(value.toInt())) {
        refuse(QStringLiteral("Invalid enum value %1").arg(value.toInt()));
        return;
    }
    writeValue(value);
}

bool KivData::writeValue(QVariant value)
{
    // A page finds a number where it wrote the text of one.
    const QVariant reported = d->reportedValue();
    value = uiutils::readValue(value, reported.userType());
    if (!mayWrite(!uiutils::isSameValue(value, d->value)))
        return false;
    const Manifest* owner = manifest();
    if (owner && owner->isChanging()) {
        d->reported = reported;
        d->isChanged = true;
        d->isSent = false;
        d->previous = d->value;
        setValueInternal(value);
        return true;
    }
    const QPointer<KivData> self(this);
    KIVClientInterface* client = getClient();
    const unsigned reports = d->reports;
    const bool isTaken = client && client->setItem(getId(), value);
    if (!self)
        return true;
    if (!isTaken)
        checkAppError();
    else if (d->reports == reports)
        setValueInternal(value);
    return true;
}

/// What the service said last, which a pending change hides.
QVariant KivDataPrivate::reportedValue() const
{
    if (item)
        return item->getValue();
    return isPending() ? reported : value;
}

void KivData::holdValue(QVariant value)
{
    d->value = std::move(value);
    if (d->formatter)
        d->formatter->setValue(d->value);
}

void KivData::setValueInternal(QVariant& value)
{
    holdValue(value);
    d->announceValue();
}

void KivData::holdReport(const QVariant& value)
{
    ++d->reports;
    holdValue(value);
}

void KivDataPrivate::announceValue()
{
    q->announce({&KivData::announceCount, &KivData::announceSelection, &KivData::valueChanged});
}

void KivData::announce(std::initializer_list<void (KivData::*)()> steps)
{
    if (d->isStopped())
        return;
    if (d->isBeingTold()) {
        uiutils::Announcement::countReturn();
        d->announcing->add(steps);
        return;
    }
    uiutils::Announcement announcement(steps, d->announcing);
    const unsigned outerChain = d->toldIn;
    const bool wasStopped = d->stopped;
    d->announcing = &announcement;
    d->enterChain();
    while (announcement.beginRound()) {
        for (const uiutils::Announcement::Step step : announcement.steps()) {
            (this->*step)();
            // A slot may delete the wrapper.
            if (announcement.isAbandoned())
                return;
        }
    }
    d->announcing = announcement.outer();
    if (!d->announcing)
        return;
    d->toldIn = outerChain;
    d->stopped = wasStopped;
}

/// Not for the event loop of a handler: what is told out there goes on when that ends.
bool KivDataPrivate::isBeingTold() const
{
    return announcing && announcing->isCurrent();
}

bool KivData::mayWrite(bool isChange)
{
    // Items that mirror each other would else be told over every way from one to the other.
    if (isChange || !d->isKnownToChain())
        return !d->isStopped();
    uiutils::Announcement::countReturn();
    return false;
}

/// Whether the item was told, or stopped, since the first of the announcements on the stack.
bool KivDataPrivate::isKnownToChain() const
{
    const unsigned chain = uiutils::Announcement::chain();
    return chain != 0 && toldIn == chain;
}

void KivDataPrivate::enterChain()
{
    if (isKnownToChain())
        return;
    toldIn = uiutils::Announcement::chain();
    stopped = false;
}

/// Whether the handlers have had their rounds. Of handlers that set each other going, each is stopped, and named, once.
bool KivDataPrivate::isStopped()
{
    if (isKnownToChain() && stopped) {
        uiutils::Announcement::countReturn();
        return true;
    }
    const bool hasHadRounds = isBeingTold() && announcing->isLastRound();
    if (!hasHadRounds && !uiutils::Announcement::isExhausted())
        return false;
    enterChain();
    stopped = true;
    qWarning("The value of %s does not settle: a handler of its change, or of another item's, writes another one each "
             "time. It was stopped after %d %s; let the handler write a value that stays.",
            qUtf8Printable(q->getId()),
            hasHadRounds ? uiutils::Announcement::mostRounds : uiutils::Announcement::mostReturns,
            hasHadRounds ? "rounds" : "writes of items that handlers had come from");
    return true;
}

void KivData::announceCount()
{
    if (d->isVector)
        Q_EMIT valueCountChanged();
}

void KivData::announceSelection()
{
    if (!d->followsUserData)
        return;
    const int selection = getArraySelection();
    const QString text = getArraySelectionString();
    if (selection == d->selection && text == d->selectionText)
        return;
    d->selection = selection;
    d->selectionText = text;
    Q_EMIT arraySelectionChanged();
}

bool KivDataPrivate::endChange()
{
    const bool wasPending = isPending();
    isChanged = false;
    isSent = false;
    return wasPending;
}

void KivData::apply()
{
    if (!d->endChange())
        return;
    const QPointer<KivData> self(this);
    QVariant value = d->value;
    const QPointer<KIVClientInterface> client = getClient();
    const unsigned reports = d->reports;
    const bool isRefused = client && !client->setItem(getId(), value);
    const QString error = isRefused && client ? client->getLastError() : QString();
    if (!self)
        return;
    // What was refused stays pending, so that it can be mended or taken back.
    d->isChanged = isRefused && d->reports == reports;
    if (d->reports == reports)
        setValueInternal(value);
    if (self && isRefused)
        refuse(error);
}

void KivData::revert()
{
    if (!d->endChange())
        return;
    QVariant previous = d->previous;
    setValueInternal(previous);
}

void KivData::checkAppError()
{
    if (const KIVClientInterface* client = getClient())
        refuse(client->getLastError());
}

void KivData::refuse(const QString& error)
{
    d->refuse(error);
}

void KivDataPrivate::refuse(const QString& reason)
{
    error = reason;
    Q_EMIT q->errorChanged(q->getName(), reason);
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
    return d->value.type() == QVariant::StringList ? QVariant(d->value.toStringList().at(ind))
                                                   : d->value.toList().at(ind);
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
    QVariantList list = d->value.toList();
    list[ind] = uiutils::plainValue(val);
    QVariant value = list;
    if (d->value.type() == QVariant::StringList)
        value.convert(QVariant::StringList);
    setValue(value);
}

int KivData::getValueCount() const
{
    if (!d->isVector)
        return 0;
    return d->value.type() == QVariant::StringList ? d->value.toStringList().size() : d->value.toList().size();
}

QString KivDataPrivate::arraySelectionKey() const
{
    return q->getId() + QLatin1String(":array_selection:");
}

/// Selections are shared by all wrappers of an id; only those that somebody asked for theirs listen.
void KivDataPrivate::followUserData()
{
    if (followsUserData)
        return;
    followsUserData = true;
    QObject::connect(UserData::getInstance(), &UserData::signalDataChanged, q, [this](const QString& key) {
        if (key == arraySelectionKey())
            q->announceSelection();
    });
    selection = q->getArraySelection();
    selectionText = q->getArraySelectionString();
}

int KivData::getArraySelection() const
{
    d->followUserData();
    const int count = getValueCount();
    const QVariant kept = UserData::getInstance()->getData(d->arraySelectionKey());
    if (kept.isValid() && isWithin(kept.toInt(), count))
        return kept.toInt();
    return count > 0 ? 0 : -1;
}

void KivData::setArraySelection(int index)
{
    if (isWithin(index, getValueCount()) && index != getArraySelection())
        UserData::getInstance()->setData(d->arraySelectionKey(), index);
}

QString KivData::getArraySelectionString() const
{
    return variantAt(getArraySelection()).toString();
}

// --- Choices of an enumeration -------------------------------------------------------------------

QObject* KivData::getEnums() const
{
    const KIVEnumChoicesClientItem* choices = choicesOf(d->item);
    if (!d->enums && choices)
        d->enums = uiutils::EnumNames::create(*choices, const_cast<KivData*>(this));
    return d->enums;
}

int KivData::getEnumCount() const
{
    const KIVEnumChoicesClientItem* choices = choicesOf(d->item);
    return choices ? choices->count() : 0;
}

QString KivData::enumLabel(int const& index)
{
    return isWithin(index, getEnumCount()) ? choicesOf(d->item)->labelAt(index) : QString();
}

QString KivData::enumLabelForValue(int const& index)
{
    const KIVEnumChoicesClientItem* choices = choicesOf(d->item);
    return choices && choices->contains(index) ? choices->labelForValue(unsigned(index)) : QString();
}

int KivData::enumValue(int const& index)
{
    return isWithin(index, getEnumCount()) ? choicesOf(d->item)->valueAt(index) : -1;
}

int KivData::enumIndex(int const& value)
{
    const KIVEnumChoicesClientItem* choices = choicesOf(d->item);
    return choices ? choices->indexOf(value) : -1;
}

bool KivData::applicableAt(int const& index)
{
    return isWithin(index, getEnumCount()) && choicesOf(d->item)->isApplicableAt(index);
}
