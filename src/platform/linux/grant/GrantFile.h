#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What stands in the file of a grant: "barquell grant 1" and "user NAME", a line each and nothing else.
namespace barquell::grant {

/// More is read of no file.
inline constexpr std::size_t kMaximumSize = 512;

/// The name that the file's text grants to; nothing where it is no grant. Any thread.
std::optional<std::string_view> grantedName(std::string_view text);

/// The text of a grant; nothing for a name that it cannot carry.
std::optional<std::string> grantText(std::string_view name);

} // namespace barquell::grant
