#pragma once

#include "base/folderwatch_p.h"
#include "base/temporaryfolder_p.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace uiutils::qmltool {

/// Folders of translations. Catalogues of translators (.ts) in them are compiled, so that whoever writes a page or a
/// service sees at once what was translated.
class Translations
{
public:
    explicit Translations(const QStringList& folders);
    ~Translations();

    /// The folders, each followed by what was compiled of it; this is there as long as the object is.
    QStringList folders() const;
    /// What went wrong, in words; empty if nothing did.
    QStringList problems() const { return m_problems; }
    /// Compiles again what translators save, and says so. Needs an event loop.
    void follow(const std::function<void()>& compiled);

private:
    void compile();
    void compile(const QString& program, const QString& source, const QString& target);

    const QStringList m_sources;
    std::unique_ptr<TemporaryFolder> m_compiled;
    QStringList m_problems;
    std::unique_ptr<FolderWatch> m_watch;
};

/// The folders "translations" beside the page and beside the page's folder.
QStringList translationsOfPage(const QString& page);
/// The folders "translations" in folders of service files.
QStringList translationsOfServices(const QStringList& folders);

} // namespace uiutils::qmltool
