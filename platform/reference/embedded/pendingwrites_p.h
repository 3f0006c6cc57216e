#pragma once

#include "servicedata_p.h"

namespace kiv::embedded {

/// Values that are all checked before the first is taken, and all taken before anybody hears of the first.
class PendingWrites
{
public:
    /// Adds what a client sets. Returns why the item refuses it, in words, or an empty text.
    QString addWrite(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value);

    /// Adds what a service sets of its own accord at a client's request: limits do not bind it.
    QString addReport(ServiceData& service, const ItemStore::StatePtr& state, const QVariant& value);

    /// Takes the values, keeps those of settings and tells the clients. The services may be gone after that.
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
