#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace uiutils {

/// The translations that an application uses while this object lives.
class Translations
{
public:
    Translations();
    ~Translations();

    /// Installs those of the library and of the application for the language of the default locale, from the installed
    /// folder and from `folders`. A folder without any is no problem.
    void install(const QStringList& folders);

private:
    void installFrom(const QString& folder, const QString& name);

    std::vector<std::unique_ptr<QTranslator>> m_installed;
};

} // namespace uiutils
