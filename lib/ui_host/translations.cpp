#include "ui_host/translations_p.h"

#include "base/ownplace_p.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace uiutils {

Translations::Translations() = default;
Translations::~Translations() = default;

void Translations::install(const QStringList& folders)
{
    const QStringList all
            = QStringList(installedFolder(QStringLiteral(UIUTILS_SHARED_FOLDER "/translations"))) + folders;
    for (const QString& folder : all) {
        installFrom(folder, QStringLiteral("uiutils"));
        installFrom(folder, QCoreApplication::applicationName());
    }
}

void Translations::installFrom(const QString& folder, const QString& name)
{
    // An empty folder would be the current one.
    auto translator = std::make_unique<QTranslator>();
    if (!folder.isEmpty() && translator->load(QLocale(), name, QStringLiteral("_"), folder)
            && QCoreApplication::installTranslator(translator.get()))
        m_installed.push_back(std::move(translator));
}

} // namespace uiutils
