#pragma once

#include <embedded/embeddedbackend.h>

namespace bench {

/// Our service in this process, read from a service file.
class OwnService
{
public:
    explicit OwnService(int items);

    kiv::embedded::EmbeddedService* service() const;

private:
    kiv::embedded::EmbeddedBackend m_backend;
};

} // namespace bench
