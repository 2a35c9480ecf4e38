#include "platform/macos/MacKeyboardLayout.h"

#include "platform/macos/CFOwner.h"

#include <Carbon/Carbon.h>
#include <CoreServices/CoreServices.h>

#include <array>

namespace barquell {

std::optional<QString> MacKeyboardLayout::displayName(std::uint16_t keyCode) const {
    const CFOwner source(TISCopyCurrentASCIICapableKeyboardInputSource());
    if (!source) {
        return std::nullopt;
    }
    const auto data =
        static_cast<CFDataRef>(TISGetInputSourceProperty(source.get(), kTISPropertyUnicodeKeyLayoutData));
    if (!data) {
        return std::nullopt;
    }
    const auto *layout = reinterpret_cast<const UCKeyboardLayout *>(CFDataGetBytePtr(data));
    UInt32 deadKeys = 0;
    std::array<UniChar, 256> units{};
    UniCharCount length = 0;
    const OSStatus status =
        UCKeyTranslate(layout, keyCode, kUCKeyActionDisplay, 0, LMGetKbdType() & 0xFFU,
                       kUCKeyTranslateNoDeadKeysMask, &deadKeys, units.size(), &length, units.data());
    if (status != noErr) {
        return std::nullopt;
    }
    return QString(reinterpret_cast<const QChar *>(units.data()), static_cast<qsizetype>(length));
}

} // namespace barquell
