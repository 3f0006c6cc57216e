#pragma once

#include "core/uiutils_export.h"

#include <QQmlPropertyMap>

#include <memory>

class KivAggregateData;

namespace uiutils {
class QMLAggregatePrivate;
}

/// The members of a record as keys of a map. What QML writes goes to the service; the key changes when the service
/// reports the new record, because the service has the last word.
class UIUTILS_EXPORT QMLAggregate : public QQmlPropertyMap
{
    // No meta-object of its own: one between the map's and the keys would hide keys from QML.

public:
    /// `owner` owns the map.
    explicit QMLAggregate(KivAggregateData& owner);
    ~QMLAggregate() override;

    /// Ends the map; one that QML has ever written when the event loop runs, because a write tells of itself after
    /// updateValue(), and nobody says when that is over.
    void release();

protected:
    QVariant updateValue(QString const& key, QVariant const& input) override;

private:
    const std::unique_ptr<uiutils::QMLAggregatePrivate> d;
};
