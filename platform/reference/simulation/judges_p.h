#pragma once

#include "plan_p.h"

#include <QMap>
#include <QObject>
#include <QVector>

#include <functional>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::simulation {

/// Lets quality and readiness of items follow their values, whoever sets those. Owned by the service.
class Judges final : public QObject
{
    Q_OBJECT

public:
    Judges(embedded::EmbeddedService* service, const QVector<Judgement>& judgements);

    /// Judges an item by the value that it has now; nothing for one that is not judged.
    void judge(const QString& id);

    /// The condition with what the value that the item has now says of it.
    Condition judged(const QString& id, Condition condition) const;

    /// What else changes the condition of an item. May be empty.
    std::function<Condition(const QString& id, const Condition& condition)> changed;

private:
    /// The objects of the items are new each time when the service returns.
    void follow();

    embedded::EmbeddedService* const m_service;
    QMap<QString, Judgement> m_judgements;
};

} // namespace kiv::simulation
