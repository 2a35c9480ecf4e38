#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace barquell::recording {

/// A device's name as it may be printed to a terminal: what is not a printable character of UTF-8 becomes
/// '?', and what is longer than kMaximumName bytes is cut between two characters.
std::string cleanName(std::string_view name);

/// Appends the text with what is neither printable nor a tab or a line's end made '?'. Returns how many bytes
/// were taken: a character that the text's end cuts is left for the next piece, unless this is the last.
std::size_t appendCleanLines(std::string &clean, std::string_view text, bool last);

} // namespace barquell::recording
