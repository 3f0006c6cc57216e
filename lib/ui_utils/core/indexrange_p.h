#pragma once

namespace uiutils {

/// Whether `index` is that of one of `count` elements; pages may request any index.
constexpr bool isWithin(int index, int count)
{
    return index >= 0 && index < count;
}

} // namespace uiutils
