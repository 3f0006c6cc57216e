#pragma once

#include "base/temporaryfolder_p.h"

#include <QStringList>

#include <memory>

namespace uiutils::qmltool {

/// The translations of a page: what is in the folder "translations" beside the page, or beside the page's folder.
/// Catalogues of translators (.ts) are compiled, so that whoever writes a page sees at once what was translated.
class PageTranslations
{
public:
    explicit PageTranslations(const QString& page);
    ~PageTranslations();

    /// With the catalogues that have been compiled, as long as this object exists.
    QStringList folders() const { return m_folders; }
    /// What went wrong, in words; empty if nothing did.
    QStringList problems() const { return m_problems; }

private:
    void compile(const QStringList& sources);

    std::unique_ptr<TemporaryFolder> m_compiled;
    QStringList m_folders;
    QStringList m_problems;
};

} // namespace uiutils::qmltool
