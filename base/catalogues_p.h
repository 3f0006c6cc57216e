#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace uiutils {

/// The language in which the texts are written; it needs no catalogue.
constexpr char sourceLanguage[] = "en";

/// The installed folder of catalogues, or the folder of that name in it; empty if there is none.
QString installedCatalogues(const QString& name = QString());

/// The catalogues "NAME_LANGUAGE.qm" in a list of folders. Those of a later folder have precedence. In the installed
/// folder, which many applications share, NAME is "uiutils" or the application's name; in all others it is any name.
///
/// Catalogues of services translate what services say and nothing else. Those of the application have precedence over
/// them. They bring no language: an application that speaks only with its services' words would be half translated.
class Catalogues
{
public:
    /// Those in the installed folder and in `folders`; those of services in `serviceFolders`.
    explicit Catalogues(const QStringList& folders = {}, const QStringList& serviceFolders = {});

    /// The languages to offer: those of the application, where it has catalogues of its own, else the library's; the
    /// source language first.
    QStringList offered() const;
    /// Whether there is a catalogue of that language that can be read, or it is the source language.
    bool has(const QString& code) const;
    /// The language that suits the locale best; without one the source language.
    QString bestFor(const QLocale& locale) const;
    /// All of a language, the least important first; those of German are also used for the German of Austria.
    std::vector<std::unique_ptr<QTranslator>> load(const QString& code) const;

private:
    QString m_installed;
    QStringList m_folders;
    QStringList m_serviceFolders;
};

/// The locale of a language.
QLocale localeOfLanguage(const QString& code);

/// The locale itself if its numbers are written with the digits 0 to 9, which entries take and services send; else that
/// of a country in which the language is written with them, if there is one.
QLocale withPlainDigits(const QLocale& usual);

} // namespace uiutils
