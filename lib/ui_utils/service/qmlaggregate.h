#pragma once

#include "core/uiutils_export.h"

#include <QQmlPropertyMap>

#include <memory>

class KivAggregateData;

namespace uiutils {
class QMLAggregatePrivate;
}

/// The members of an aggregate as keys of a map. What QML writes is sent to the service; the key changes when the
/// service reports the new aggregate, because the service decides.
class UIUTILS_EXPORT QMLAggregate : public QQmlPropertyMap
{
    // No meta-object of its own: between the map's and the keys it would hide keys from QML.

public:
    /// `owner` owns the map.
    explicit QMLAggregate(KivAggregateData& owner);
    ~QMLAggregate() override;

    /// Deletes the map. If QML has ever written it, this waits for the event loop, because a write emits its signal
    /// after updateValue(), and nothing says when that has ended.
    void release();

protected:
    QVariant updateValue(QString const& key, QVariant const& input) override;

private:
    const std::unique_ptr<uiutils::QMLAggregatePrivate> d;
};
