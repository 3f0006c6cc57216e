#pragma once

#include <kiv/kivclientitem.h>

#include <QJsonObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

namespace kiv::embedded {

class EmbeddedService;

/// What a service has become since its file was read, and what of that stays when the file is read again: everything
/// that the file says nothing new about.
class KeptState
{
public:
    /// `before` and `now` are what the file said and says; both conform to the schema.
    KeptState(const EmbeddedService& service, const QJsonObject& before, const QJsonObject& now);

    /// Emits what the setters of the service emit. The service may be gone after that.
    void giveBackTo(EmbeddedService* service) const;

private:
    /// Without a value, what the file says counts.
    struct Item
    {
        QString id;
        std::optional<QVariant> value;
        std::optional<KIVClientItem::Quality> quality;
        std::optional<bool> isReady;
    };

    QVector<Item> m_items;
    std::optional<bool> m_isReachable;
};

} // namespace kiv::embedded
