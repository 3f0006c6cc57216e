#pragma once

#include "judgement_p.h"

#include <QHash>
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

    /// Whether the value that an item has now makes it ready; `otherwise` for one of which that is not judged.
    bool isReadyByValue(const QString& id, bool otherwise) const;

    /// Whether something else keeps an item from being ready.
    std::function<bool(const QString& id)> isHeldBack;

private:
    /// The objects of the items are new each time when the service returns.
    void follow();

    embedded::EmbeddedService* const m_service;
    QHash<QString, Judgement> m_judgements;
};

} // namespace kiv::simulation
