#include "pendingwrites_p.h"

#include "shownvalue_p.h"
#include "texts_p.h"
#include "valuelimits_p.h"

#include <algorithm>

namespace kiv::embedded {

namespace {

QString rejection(const ItemState& state, const QVariant& value, const QString& problem)
{
    return RequestTexts::tr("%1 cannot be set to %2: %3. Allowed: %4.")
            .arg(state.title(), quotedText(value), problem, allowedText(state.description, state.type));
}

bool isAvailable(const ItemDescription& item, const QVariant& value)
{
    return std::none_of(item.choices.cbegin(), item.choices.cend(), [&](const ChoiceDescription& choice) {
        return !choice.isApplicable && double(choice.value) == value.toDouble();
    });
}

} // namespace

QString PendingWrites::addWrite(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value)
{
    const ItemDescription& item = state->description;
    if (!item.refusal.isEmpty())
        return item.refusal;
    if (!item.isReady)
        return RequestTexts::tr("%1 cannot be set now: it is not ready. Try again later.").arg(state->title());
    const Conversion conversion = convertForItem(item, state->type, value);
    if (!conversion.problem.isEmpty())
        return rejection(*state, value, conversion.problem);
    if (!isAvailable(item, conversion.value))
        return rejection(*state, value, RequestTexts::tr("not available now"));
    m_writes.append({&service, state, conversion.value});
    return QString();
}

QString PendingWrites::addReport(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value)
{
    const Conversion conversion = convertReported(state->type, state->description.members, value);
    if (!conversion.problem.isEmpty())
        return rejection(*state, value, conversion.problem);
    m_writes.append({&service, state, conversion.value});
    return QString();
}

void PendingWrites::apply()
{
    const QVector<Write> writes = std::move(m_writes);
    QVector<ItemState::Changes> changes;
    for (const Write& write : writes) {
        changes += write.state->takeValue(write.value);
        if (!write.state->isSetting())
            continue;
        write.state->isKept = true;
        write.service->scheduleSave();
    }
    for (int i = 0; i < writes.size(); ++i)
        emitChanges(writes.at(i).state, changes.at(i));
}

} // namespace kiv::embedded
