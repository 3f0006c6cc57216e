#pragma once

#include "ui_host/serviceplatform_p.h"

class KIVClientInterface;

namespace uiutils {

/// Services of a platform that is there already, by their names.
class NamedServices final : public ServicePlatform
{
    Q_OBJECT

public:
    /// Returns false, with the reason in `problems`, when there is none of them and none can come.
    bool begin(const QStringList& names, QStringList* problems);

    QStringList serviceNames() const override { return m_reached; }
    kiv::embedded::EmbeddedService* ownService(const QString&) const override { return nullptr; }

private:
    void follow(const QString& name, KIVClientInterface* client);

    QStringList m_reached;
};

} // namespace uiutils
