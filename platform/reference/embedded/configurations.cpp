#include "configurations_p.h"

#include "pendingwrites_p.h"
#include "texts_p.h"

#include "base/batchname_p.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace kiv::embedded {

namespace {

/// Finds settings by their ids, or the last word of these. A service is indexed once, when a name is first looked up in
/// it.
class SettingFinder
{
public:
    struct Setting
    {
        ServiceData* service = nullptr;
        ItemStore::StatePtr state;
    };

    explicit SettingFinder(ServiceData& first)
        : m_order {&first}
    {
        const QVector<EmbeddedService*> others = first.published ? first.published() : QVector<EmbeddedService*>();
        for (const EmbeddedService* other : others) {
            ServiceData& data = ServiceData::of(*other);
            if (&data != &first && data.items.isOpen())
                m_order += &data;
        }
    }

    Setting find(const QString& name) { return name.startsWith(QLatin1Char(':')) ? findId(name) : findName(name); }

private:
    using Index = QHash<QString, ItemStore::StatePtr>;

    Setting findId(const QString& id) const
    {
        for (ServiceData* service : m_order) {
            const ItemStore::StatePtr state = service->items.find(id);
            if (state && state->isSetting())
                return {service, state};
        }
        return {};
    }

    Setting findName(const QString& name)
    {
        const QString spelt = uiutils::fromBatchName(name);
        for (int i = 0; i < m_order.size(); ++i) {
            const ItemStore::StatePtr exact = index(i).value(name);
            const ItemStore::StatePtr state = exact ? exact : index(i).value(spelt);
            if (state)
                return {m_order.at(i), state};
        }
        return {};
    }

    const Index& index(int service)
    {
        while (m_indexes.size() <= service)
            m_indexes += indexOf(*m_order.at(m_indexes.size()));
        return m_indexes.at(service);
    }

    static Index indexOf(const ServiceData& service)
    {
        Index index;
        const QVector<ItemStore::StatePtr> states = service.items.inOrder();
        for (const ItemStore::StatePtr& state : states) {
            if (state->isSetting() && !index.contains(state->name()))
                index.insert(state->name(), state);
        }
        return index;
    }

    QVector<ServiceData*> m_order;
    QVector<Index> m_indexes;
};

Outcome rejected(const QStringList& problems, const QMap<QString, QString>& byName = {})
{
    return {false, RequestTexts::tr("Nothing was set. %1").arg(problems.join(QLatin1Char(' '))), byName};
}

} // namespace

Outcome applyConfiguration(ServiceData& service, const QString& argument)
{
    // Screens send the UTF-8 bytes of the JSON as if each were a character; the text itself is accepted too.
    QJsonParseError error {};
    QJsonDocument document = QJsonDocument::fromJson(argument.toLatin1(), &error);
    const bool isText = argument != QString::fromLatin1(argument.toLatin1());
    if (isText || !document.isObject())
        document = QJsonDocument::fromJson(argument.toUtf8(), &error);
    if (!document.isObject()) {
        const bool isJson = error.error == QJsonParseError::NoError;
        const QString reason = isJson ? RequestTexts::tr("not an object") : error.errorString();
        return rejected(
                {RequestTexts::tr("The settings for the service %1 are not a JSON object of values by name: %2.")
                                .arg(service.name, reason)});
    }
    const QJsonObject values = document.object();
    SettingFinder finder(service);
    PendingWrites writes;
    QStringList problems;
    QMap<QString, QString> problemsByName;
    QSet<const ItemState*> named;
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        const SettingFinder::Setting setting = finder.find(it.key());
        QString problem;
        if (!setting.state)
            problem = RequestTexts::tr("There is no setting \"%1\".").arg(it.key());
        else if (named.contains(setting.state.get()))
            problem = RequestTexts::tr("%1 is named twice.").arg(setting.state->title());
        else
            problem = writes.addWrite(*setting.service, setting.state, it.value().toVariant());
        named += setting.state.get();
        if (problem.isEmpty())
            continue;
        problems += problem;
        problemsByName.insert(it.key(), problem);
    }
    if (!problems.isEmpty())
        return rejected(problems, problemsByName);
    const Outcome outcome {true, RequestTexts::tr("Settings applied: %1.").arg(values.size())};
    writes.apply();
    return outcome;
}

Outcome saveConfiguration(ServiceData& service, const QString& argument)
{
    const int comma = argument.lastIndexOf(QLatin1Char(','));
    const QString name = argument.left(comma).trimmed();
    if (comma < 0 || name.isEmpty())
        return {false,
                RequestTexts::tr("The configuration of %1 was not saved: it needs a name, as in \"My settings,1\".")
                        .arg(service.name)};
    if (!service.keeper)
        return {false,
                RequestTexts::tr("The configuration \"%1\" was not saved: there is no folder to store it in.")
                        .arg(name)};
    QString error;
    if (!service.keeper->saveConfiguration(name, &error))
        return {false, error};
    return {true, RequestTexts::tr("The configuration was saved as \"%1\".").arg(name)};
}

} // namespace kiv::embedded
