#pragma once

#include "options.h"

#include <QObject>
#include <QStringList>

#include <memory>

class KIVBackend;

namespace uiutils::describe {

/// The services to describe, whose items the registry of the process has.
class Sources
{
public:
    Sources();
    ~Sources();
    Q_DISABLE_COPY_MOVE(Sources)

    /// Brings them up. Returns false, having complained, when one of them could not be used.
    bool open(const Options& options);

private:
    bool openFiles(const QStringList& paths);
    bool openBus();
    bool choose(const QStringList& wanted);

    std::unique_ptr<KIVBackend> m_backend;
    QStringList m_names;
    /// The parent of the manifests.
    QObject m_manifests;
};

} // namespace uiutils::describe
