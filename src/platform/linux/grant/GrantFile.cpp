#include "platform/linux/grant/GrantFile.h"

#include <algorithm>

namespace barquell::grant {

namespace {

constexpr std::string_view kHead = "barquell grant 1\nuser ";

bool isName(std::string_view name) {
    return !name.empty() &&
           std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < '\x7f' && c != ':'; });
}

} // namespace

std::optional<std::string_view> grantedName(std::string_view text) {
    if (text.size() > kMaximumSize || !text.starts_with(kHead) || !text.ends_with('\n')) {
        return std::nullopt;
    }
    text.remove_prefix(kHead.size());
    if (text.empty()) {
        return std::nullopt; // the end of line was the first one's
    }
    text.remove_suffix(1);
    return isName(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::string> grantText(std::string_view name) {
    std::string text = std::string(kHead).append(name) + '\n';
    return grantedName(text) ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace barquell::grant
