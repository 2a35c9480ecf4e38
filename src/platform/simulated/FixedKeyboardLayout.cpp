#include "platform/simulated/FixedKeyboardLayout.h"

#include <string_view>

namespace barquell {

namespace {

/// By virtual key code (kVK_ANSI_…, HIToolbox/Events.h); a space stands for keys that type nothing here.
constexpr std::u16string_view kKeys = u"asdfhgzxcv bqweryt123465=97-80]ou[ip lj'k;\\,/nm.  `";

} // namespace

std::optional<QString> FixedKeyboardLayout::displayName(std::uint16_t keyCode) const {
    if (keyCode >= kKeys.size() || kKeys[keyCode] == u' ') {
        return std::nullopt;
    }
    return QString(QChar(kKeys[keyCode]));
}

std::optional<std::uint16_t> FixedKeyboardLayout::keyCodeFor(QChar character) {
    const auto position = kKeys.find(character.unicode());
    if (position == kKeys.npos || character == u' ') {
        return std::nullopt;
    }
    return static_cast<std::uint16_t>(position);
}

} // namespace barquell
