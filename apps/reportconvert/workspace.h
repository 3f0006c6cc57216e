#pragma once

#include "base/temporaryfolder_p.h"

#include <QString>

#include <memory>

namespace uiutils::convert {

/// A folder of this run's own, removed with the object; what killed runs have left goes first. Unless UIUTILS_ROOT says
/// otherwise, it is the instrument's root too: the writers find their icons and leave their plots there, and nothing
/// else of the disk is touched.
class Workspace
{
public:
    /// Makes and fills the folder and tells the toolkit and the library about it. Returns false, with the reason and
    /// what to do in `error`, when that fails.
    bool prepare(QString* error);

    /// For what is kept only meanwhile.
    QString path() const { return m_folder->path(); }

private:
    bool makeRoot();

    std::unique_ptr<TemporaryFolder> m_folder;
};

} // namespace uiutils::convert
