#pragma once

#include "base/temporaryfolder_p.h"

#include <QString>

#include <memory>

namespace uiutils::convert {

/// A folder of this run's own, removed with the object; those of killed runs are removed first. Unless UIUTILS_ROOT
/// says otherwise, it is the instrument's root too: the writers find their icons and write their plots there, and use
/// nothing else of the disk.
class Workspace
{
public:
    /// Creates and fills the folder and passes it to the toolkit and the library. Returns false, with the reason and
    /// what to do in `error`, on failure.
    bool prepare(QString* error);

    /// Where the folder is made.
    static QString place();
    /// For temporary files.
    QString path() const { return m_folder->path(); }

private:
    bool makeRoot();

    std::unique_ptr<TemporaryFolder> m_folder;
};

} // namespace uiutils::convert
