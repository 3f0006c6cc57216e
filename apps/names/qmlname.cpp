#include "names/qmlname.h"

#include <algorithm>

namespace uiutils::names {

namespace {

// Letters beyond the basic plane are two surrogates each, which QML does not accept in names.
bool isLetter(QChar character)
{
    return character.isLetter() || character == QLatin1Char('_') || character == QLatin1Char('$');
}

bool isPart(QChar character)
{
    return isLetter(character) || character.isDigit() || character.category() == QChar::Mark_NonSpacing
            || character.category() == QChar::Mark_SpacingCombining;
}

} // namespace

bool isQmlName(const QString& name)
{
    return !name.isEmpty() && isLetter(name.at(0)) && std::all_of(name.cbegin(), name.cend(), isPart);
}

} // namespace uiutils::names
