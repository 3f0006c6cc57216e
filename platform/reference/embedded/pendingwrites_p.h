#pragma once

#include "servicedata_p.h"

namespace kiv::embedded {

/// Values that are all checked before the first is set, and all set before the first is reported.
class PendingWrites
{
public:
    /// Adds a value from a client. Returns why the item rejects it, in words, or an empty text.
    QString addWrite(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value);

    /// Adds a value that the service itself sets at a client's request: limits do not apply.
    QString addReport(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value);

    /// Sets the values, stores those of settings and reports them to clients. The services may have been removed after
    /// that.
    void apply();

private:
    struct Write
    {
        ServiceData* service;
        ItemStore::StatePtr state;
        QVariant value;
    };
    QVector<Write> m_writes;
};

} // namespace kiv::embedded
