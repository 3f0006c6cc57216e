#pragma once

#include "servicetexts/servicetexts.h"

namespace uiutils::servicetexts {

/// Brings the catalogues of translators ("NAME_LANGUAGE.ts") up to the texts of services: new texts are unfinished,
/// translations stay, and what is no longer said is marked as vanished. A catalogue that does not exist is made. A
/// message to which the translator has given an item's id as comment stays as long as the item says the text.
///
/// A catalogue that cannot be used (no name of a language, no catalogue, messages of pages) stays as it is, with a
/// sentence in `problems`. Runs the program lupdate; returns its summaries, a line for each catalogue.
QStringList updateCatalogues(const QStringList& catalogues, const ServiceTexts& texts, QStringList* problems);

} // namespace uiutils::servicetexts
