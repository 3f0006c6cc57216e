#pragma once

#include "languages/languages.h"

namespace uiutils {

/// Labels a setting or a choice in the language of the application, as long as nobody gives it another label. `words()`
/// requests the label.
template<class Labelled, class Words> void keepLabelled(Labelled* object, Words words)
{
    object->setLabel(words());
    const auto translate = [object, words, last = object->getLabel()]() mutable {
        if (object->getLabel() != last)
            return;
        last = words();
        object->setLabel(last);
    };
    QObject::connect(Languages::instance(), &Languages::currentChanged, object, translate);
}

} // namespace uiutils
