// The part of KivData that has the elements of an array and the choices of an enumeration.

#include "service/kivdata_p.h"

#include "core/indexrange_p.h"
#include "core/plainvalue_p.h"
#include "core/userdata.h"
#include "service/enumnames_p.h"

#include <kiv/kivenumclientitem.h>

using uiutils::choicesOf;
using uiutils::isWithin;
using uiutils::KivDataPrivate;

// --- Elements of an array ------------------------------------------------------------------------

/// Does not convert a list of texts to a list of variants for each element.
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

/// All wrappers of an id share a selection. Only wrappers whose selection has been requested listen.
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
