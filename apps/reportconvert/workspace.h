#pragma once

#include <QString>
#include <QTemporaryDir>

namespace uiutils::convert {

/// A folder of this run's own, removed with the object. Unless UIUTILS_ROOT says otherwise, it is the
/// instrument's root too: the writers find their icons and leave their plots there, and nothing else of the
/// disk is touched.
class Workspace
{
public:
    Workspace();
    /// Fills the folder and tells the toolkit and the library about it. Returns false, with the reason and
    /// what to do in `error`, when that fails.
    bool prepare(QString* error);

    /// For what is kept only meanwhile.
    QString path() const { return m_folder.path(); }

private:
    bool makeRoot();

    QTemporaryDir m_folder;
};

} // namespace uiutils::convert
