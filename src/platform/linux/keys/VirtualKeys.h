#pragma once

#include <cstdint>
#include <optional>

/// Keys have three numbers: the virtual code of shortcuts (kVK_…, HIToolbox/Events.h), the kernel's
/// (linux/input-event-codes.h), and the X server's, which is the kernel's plus 8 and ends at 255.
namespace barquell {

std::optional<std::uint16_t> evdevCodeForVirtualKey(std::uint32_t virtualKey);
std::optional<std::uint16_t> virtualKeyForEvdevCode(std::uint32_t evdevCode);

using XKeyCode = std::uint8_t;

std::optional<XKeyCode> xKeyCodeForVirtualKey(std::uint32_t virtualKey);
std::optional<std::uint16_t> virtualKeyForXKeyCode(std::uint32_t keyCode);

} // namespace barquell
