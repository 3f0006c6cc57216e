#include "language.h"

#include "base/catalogues_p.h"

#include <QGuiApplication>
#include <QTranslator>

namespace uiutils::viewer {

Language::Language(const QString& code)
{
    const Catalogues catalogues;
    const QString best = catalogues.bestFor(QLocale());
    m_isKnown = code.isEmpty() || catalogues.has(code);
    const QString spoken = code.isEmpty() ? best : m_isKnown ? code : QLatin1String(sourceLanguage);
    QLocale::setDefault(spoken == best ? withPlainDigits(QLocale()) : localeOfLanguage(spoken));
    m_translators = catalogues.load(spoken);
    for (const auto& translator : m_translators)
        QCoreApplication::installTranslator(translator.get());
    // After the translations, each of which sets the direction that Qt's own catalogue names.
    QGuiApplication::setLayoutDirection(localeOfLanguage(spoken).textDirection());
}

Language::~Language() = default;

} // namespace uiutils::viewer
