#pragma once

#include <QCommandLineOption>
#include <QSize>

class QQmlEngine;

namespace uiutils::apps {

/// The screen that a program is made for: what its window shows there, it shows on any other screen too.
struct Screen
{
    /// In pixels.
    QSize size;
    /// 0 for the density of the screen at hand.
    int dotsPerInch = 0;
};

/// The option --screen; `standard` says in words which screen it is without the option.
QCommandLineOption screenOption(const QString& standard);

/// Reads "1024x600@170" into `screen`. Returns what is wrong with it, or an empty text.
QString readScreen(const QString& text, Screen* screen);

/// Gives the pages of the engine the measures of that density. Call it before the first page is loaded.
void useDensity(QQmlEngine* engine, int dotsPerInch);

/// Gives the pages of the engine the colours of a theme, one of ControlsStyle.themes; it shows at once.
void useTheme(QQmlEngine* engine, const QString& theme);

} // namespace uiutils::apps
