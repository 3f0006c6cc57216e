#pragma once

#include <QString>

#include <memory>
#include <vector>

class QTranslator;

namespace uiutils::viewer {

/// The language of the program, from its creation to its end: texts, numbers and the direction of the layout. Create it
/// after the application object and before the first text.
class Language
{
public:
    /// An empty code stands for the language of the environment: LANGUAGE, LC_ALL, LC_MESSAGES or LANG.
    explicit Language(const QString& code);
    ~Language();
    Q_DISABLE_COPY_MOVE(Language)

    /// False if there is no catalogue of the language that was asked for; the program then speaks English.
    bool isKnown() const { return m_isKnown; }

private:
    bool m_isKnown = true;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace uiutils::viewer
