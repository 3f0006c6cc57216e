#pragma once

#include <QStringList>
#include <QVariant>

#include <memory>

/// Brings up a back end for the platform suite, which runs unchanged over every one. A back end's own source file
/// defines create().
class PlatformSetup
{
public:
    /// The back end with the services of the given files; null when it cannot come up.
    static std::unique_ptr<PlatformSetup> create(const QStringList& serviceFiles);
    virtual ~PlatformSetup() = default;

    /// The service reports a value of its own accord.
    virtual bool report(const QString& service, const QString& id, const QVariant& value) = 0;
};
