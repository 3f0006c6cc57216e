// The part of KivData that holds, writes and announces values.

#include "service/kivdata_p.h"

#include "core/plainvalue_p.h"
#include "service/announcement_p.h"
#include "service/changewatch_p.h"
#include "service/enumnames_p.h"
#include "service/manifeststate_p.h"
#include "service/valuetext_p.h"

#include <kiv/kivenumclientitem.h>

#include <QtDebug>

#include <utility>

using uiutils::choicesOf;
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
                     : uiutils::unformattedText(d->value, getPrecision());
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
        reject(QStringLiteral("Invalid enum value %1").arg(value.toInt()));
        return;
    }
    writeValue(value);
}

bool KivData::writeValue(QVariant value)
{
    // A page that writes a number as text reads a number.
    const QVariant reported = d->reportedValue();
    value = uiutils::readValue(value, reported.userType());
    if (!mayWrite(!uiutils::isSameValue(value, d->value)))
        return false;
    const uiutils::ManifestState* owner = uiutils::manifestState(parent());
    if (owner && owner->isChanging) {
        d->reported = reported;
        d->isChanged = true;
        d->isSent = false;
        d->previous = d->value;
        holdValue(value);
        d->noteChange();
        d->announceValue();
        uiutils::ChangeWatch::flush();
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

/// What the service reported last, which a pending change hides.
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
    if (d->isAnnouncing()) {
        uiutils::Announcement::countReturn();
        d->announcing->add(steps);
        return;
    }
    uiutils::Announcement announcement(steps, d->announcing);
    const unsigned outerChain = d->announcedIn;
    const bool wasStopped = d->stopped;
    d->announcing = &announcement;
    d->enterChain(announcement.ownChain());
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
    d->announcedIn = outerChain;
    d->stopped = wasStopped;
}

/// Not in the event loop of a handler: the announcement outside continues after that loop.
bool KivDataPrivate::isAnnouncing() const
{
    return announcing && announcing->isCurrent();
}

bool KivData::mayWrite(bool isChange)
{
    // Otherwise items that mirror each other would be announced on every path from one to the other.
    if (isChange || !d->isKnownToChain())
        return !d->isStopped();
    uiutils::Announcement::countReturn();
    return false;
}

/// Whether the item was announced, or stopped, in the running chain.
bool KivDataPrivate::isKnownToChain() const
{
    const unsigned chain = uiutils::Announcement::chain();
    return chain != 0 && announcedIn == chain;
}

void KivDataPrivate::enterChain(unsigned chain)
{
    if (chain != 0 && announcedIn == chain)
        return;
    announcedIn = chain;
    stopped = false;
}

/// Whether the handlers have used up their rounds. Of handlers that trigger each other, each is stopped, and logged,
/// once.
bool KivDataPrivate::isStopped()
{
    if (isKnownToChain() && stopped) {
        uiutils::Announcement::countReturn();
        return true;
    }
    const bool hasHadRounds = isAnnouncing() && announcing->isLastRound();
    if (!hasHadRounds && !uiutils::Announcement::isExhausted())
        return false;
    enterChain(uiutils::Announcement::chain());
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

void KivDataPrivate::noteChange()
{
    if (ChangeWatch* watch = ChangeWatch::current())
        watch->noteChange(q);
}

void KivDataPrivate::revertToReported()
{
    if (isPending())
        previous = reportedValue();
}

void KivDataPrivate::withdraw()
{
    revertToReported();
    q->revert();
}

void KivData::apply()
{
    if (!d->endChange())
        return;
    const QPointer<KivData> self(this);
    QVariant value = d->value;
    const QPointer<KIVClientInterface> client = getClient();
    const unsigned reports = d->reports;
    const bool isRejected = client && !client->setItem(getId(), value);
    const QString error = isRejected && client ? client->getLastError() : QString();
    if (!self)
        return;
    // A rejected change stays pending, so that it can be corrected or undone.
    d->isChanged = isRejected && d->reports == reports;
    uiutils::ChangeWatch* watch = uiutils::ChangeWatch::current();
    if (isRejected && !d->isChanged && watch)
        watch->noteReport(this, value);
    else
        d->noteChange();
    if (d->isChanged && watch)
        watch->noteRejection(this, error);
    if (d->reports == reports)
        setValueInternal(value);
    if (self && isRejected)
        reject(error);
    uiutils::ChangeWatch::flush();
}

void KivData::revert()
{
    if (!d->endChange())
        return;
    QVariant previous = d->previous;
    holdValue(previous);
    d->noteChange();
    d->announceValue();
    uiutils::ChangeWatch::flush();
}

void KivData::checkAppError()
{
    if (const KIVClientInterface* client = getClient())
        reject(client->getLastError());
}

void KivData::reject(const QString& error)
{
    d->reject(error);
}

void KivDataPrivate::reject(const QString& reason)
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
