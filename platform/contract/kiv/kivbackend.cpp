#include <kiv/kivbackend.h>

namespace {

KIVBackend* s_current = nullptr;

} // namespace

KIVBackend::KIVBackend() = default;

KIVBackend::~KIVBackend()
{
    if (s_current == this)
        s_current = nullptr;
}

BaseFormatter* KIVBackend::createFormatter(const QString&) const
{
    return nullptr;
}

std::optional<bool> KIVBackend::isMounted(const QString&) const
{
    return std::nullopt;
}

void KIVBackend::setCurrent(KIVBackend* backend)
{
    s_current = backend;
}

KIVBackend* KIVBackend::current()
{
    return s_current;
}
