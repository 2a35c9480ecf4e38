#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// What is known of keys by their virtual key codes (HIToolbox/Events.h), whatever the keyboard layout.
namespace barquell {

inline constexpr std::uint64_t kKeyReturn = 36; // kVK_Return
inline constexpr std::uint64_t kKeyTab = 48;    // kVK_Tab
inline constexpr std::uint64_t kKeyEscape = 53; // kVK_Escape

/// The name that a key has on every layout.
std::optional<QString> fixedKeyName(std::uint64_t keyCode);

/// The key equivalent of a key that is not named by what it types.
std::optional<QString> fixedKeyEquivalent(std::uint64_t keyCode);

/// F1 to F20.
bool isFunctionKey(std::uint64_t keyCode);

} // namespace barquell
