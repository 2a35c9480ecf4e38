#pragma once

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace barquell::recording {

/// Takes a number from the text's front. One too large for any field is given as the largest there is, to be
/// refused by its range.
inline std::optional<std::int64_t> takeNumber(std::string_view &text, int base) {
    std::int64_t number = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        number = text.front() == '-' ? std::numeric_limits<std::int64_t>::min()
                                     : std::numeric_limits<std::int64_t>::max();
    }
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    return number;
}

/// A decimal number that is all of the text.
inline std::optional<std::int64_t> wholeNumber(std::string_view text) {
    const auto number = takeNumber(text, 10);
    return text.empty() ? number : std::nullopt;
}

} // namespace barquell::recording
