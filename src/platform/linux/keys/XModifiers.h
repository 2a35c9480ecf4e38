#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/x11/XConnection.h"

#include <vector>

namespace barquell {

/// Which of the X server's modifier bits the keys hold that shortcuts know; 0 for a key that is on none.
struct XModifiers {
    std::uint16_t command = 0; ///< Super
    std::uint16_t option = 0;  ///< Alt
    std::uint16_t numLock = 0;

    bool operator==(const XModifiers &) const = default;

    static XModifiers read(const XConnection &connection);

    /// The bits of a hot key's modifiers; nothing where the keyboard lacks one of them.
    std::optional<std::uint16_t> mask(HotKeyModifiers modifiers) const;

    /// A mask with each combination of the locks that it does not ask for itself.
    std::vector<std::uint16_t> withLocks(std::uint16_t mask) const;

    /// Does this state of an event mean the mask, whatever the locks say?
    bool matches(std::uint16_t state, std::uint16_t mask) const;

private:
    std::uint16_t ignoredLocks(std::uint16_t mask) const {
        return static_cast<std::uint16_t>((XCB_MOD_MASK_LOCK | numLock) & ~mask);
    }
};

} // namespace barquell
