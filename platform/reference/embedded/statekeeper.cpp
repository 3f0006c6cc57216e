#include "statekeeper_p.h"

#include "shownvalue_p.h"
#include "statefile_p.h"
#include "texts_p.h"
#include "valuelimits_p.h"

#include <QDir>

namespace kiv::embedded {

StateKeeper::StateKeeper(const QString& folder, const QString& service, ItemStore& items)
    : m_folder(folder)
    , m_service(service)
    , m_items(items)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StateKeeper::flush);
}

QStringList StateKeeper::takeBack()
{
    const QString path = stateFilePath(m_folder, m_service);
    QString problem;
    QJsonObject values;
    m_isBlocked = !readStateFile(path, &values, &problem);
    QStringList problems = problem.isEmpty() ? QStringList() : QStringList(problem);
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        const ItemStore::StatePtr state = m_items.find(it.key());
        problem = state ? fitted(*state, it.value())
                        : StateTexts::tr("the service %1 has no such setting").arg(m_service);
        if (problem.isEmpty())
            continue;
        m_leftOver.insert(it.key(), it.value());
        problems += StateTexts::tr("%1: %2: %3. The value stays in the file.").arg(path, it.key(), problem);
    }
    return problems;
}

void StateKeeper::takeBack(ItemState& state)
{
    const QString id = state.description.id;
    if (m_leftOver.contains(id) && fitted(state, m_leftOver.value(id)).isEmpty())
        m_leftOver.remove(id);
}

void StateKeeper::letGo(const ItemState& state)
{
    const QJsonValue value = storableValue(state.description.value);
    if (state.isKept && !value.isUndefined())
        m_leftOver.insert(state.description.id, value);
}

void StateKeeper::schedule()
{
    m_isDirty = true;
    m_timer.start(0);
}

void StateKeeper::flush()
{
    m_timer.stop();
    if (!m_isDirty || m_isBlocked)
        return;
    QString error;
    m_isDirty = !writeStateFile(stateFilePath(m_folder, m_service), m_service, values(), &error);
    if (m_isDirty)
        Q_EMIT failed(error);
}

bool StateKeeper::saveConfiguration(const QString& name, QString* error) const
{
    QJsonObject values;
    const QVector<ItemStore::StatePtr> states = m_items.inOrder();
    for (const ItemStore::StatePtr& state : states) {
        const QJsonValue value = storableValue(state->description.value);
        if (state->isSetting() && !value.isUndefined())
            values.insert(state->description.id, value);
    }
    const QDir folder(QDir(m_folder).filePath(escapedFileName(m_service) + QLatin1String(".configurations")));
    return writeStateFile(folder.filePath(escapedFileName(name) + QLatin1String(".json")), m_service, values, error);
}

/// Sets the value if it fits; otherwise returns the reason.
QString StateKeeper::fitted(ItemState& state, const QJsonValue& value)
{
    if (!state.isSetting())
        return StateTexts::tr("this is not a setting");
    const Conversion conversion = convertForItem(state.description, state.type, value.toVariant());
    if (!conversion.problem.isEmpty())
        return StateTexts::tr("%1 is %2, allowed: %3")
                .arg(quotedText(value.toVariant()), conversion.problem, allowedText(state.description, state.type));
    state.description.value = conversion.value;
    state.isKept = true;
    return QString();
}

QJsonObject StateKeeper::values() const
{
    QJsonObject values = m_leftOver;
    const QVector<ItemStore::StatePtr> states = m_items.inOrder();
    for (const ItemStore::StatePtr& state : states) {
        if (!state->isKept)
            continue;
        const QJsonValue value = storableValue(state->description.value);
        if (value.isUndefined())
            values.remove(state->description.id);
        else
            values.insert(state->description.id, value);
    }
    return values;
}

} // namespace kiv::embedded
