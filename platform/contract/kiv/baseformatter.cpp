#include <kiv/baseformatter.h>
#include <kiv/kivbackend.h>

BaseFormatter::BaseFormatter(QObject* parent)
    : QObject(parent)
{
}

BaseFormatter::~BaseFormatter() = default;

BaseFormatter* getFormatter(const QString& name)
{
    const KIVBackend* backend = KIVBackend::current();
    return backend ? backend->createFormatter(name) : nullptr;
}
