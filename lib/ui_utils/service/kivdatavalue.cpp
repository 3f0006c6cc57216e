// The part of KivData that holds and writes values, their elements and the choices among them.

#include "service/kivdata.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "core/userdata.h"
#include "service/enumnames_p.h"
#include "service/manifest.h"
#include "service/valuetext_p.h"

#include <kiv/kivenumclientitem.h>

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
    const bool isWhole = uiutils::fittedValue(value, QMetaType::Int).userType() == QMetaType::Int
            || uiutils::fittedValue(value, QMetaType::UInt).userType() == QMetaType::UInt;
    if (choices && !(isWhole && choices->contains(value.toInt()))) {
        refuse(QStringLiteral("Invalid enum value %1").arg(value.toInt()));
        return;
    }
    writeValue(value);
}

void KivData::writeValue(QVariant value)
{
    // Of the type that the service reports, so that a page finds a number where it wrote the text of one.
    value = uiutils::fittedValue(value, m_value.userType());
    if (m_announcing && uiutils::isSameValue(value, m_value))
        return;
    const Manifest* owner = manifest();
    if (owner && owner->isChanging()) {
        m_changed = true;
        m_sent = false;
        m_previous = m_value;
        setValueInternal(value);
        return;
    }
    const QPointer<KivData> self(this);
    KIVClientInterface* client = getClient();
    const unsigned reports = m_reports;
    const bool isTaken = client && client->setItem(getId(), value);
    if (!self)
        return;
    if (!isTaken)
        checkAppError();
    else if (m_reports == reports)
        setValueInternal(value);
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

void KivData::announceValue()
{
    // A slot may delete the wrapper, whose end then clears this; values come often, and a QPointer costs more.
    bool isAlive = true;
    bool* const outer = m_announcing;
    m_announcing = &isAlive;
    if (m_isVector)
        Q_EMIT valueCountChanged();
    if (isAlive && m_followsUserData)
        announceSelection();
    if (isAlive)
        Q_EMIT valueChanged();
    if (isAlive)
        m_announcing = outer;
    else if (outer)
        *outer = false;
}

void KivData::announceSelection()
{
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
    KIVClientInterface* client = getClient();
    const unsigned reports = m_reports;
    const bool isRefused = client && !client->setItem(getId(), value);
    const QString error = isRefused ? client->getLastError() : QString();
    if (!self)
        return;
    // What was refused stays pending, so that it can be mended or taken back.
    m_changed = isRefused;
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

QVariantList KivData::elements() const
{
    return m_isVector ? m_value.toList() : QVariantList();
}

QVariant KivData::variantAt(int ind) const
{
    return elements().value(ind);
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
    QVariantList list = elements();
    if (!isWithin(ind, list.size()))
        return;
    list[ind] = uiutils::plainValue(val);
    QVariant value = list;
    if (m_value.type() == QVariant::StringList)
        value.convert(QVariant::StringList);
    setValue(value);
}

int KivData::getValueCount() const
{
    return elements().size();
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
