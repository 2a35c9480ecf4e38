#include "recording/CleanText.h"

#include "recording/Recording.h"

#include <algorithm>
#include <array>

namespace barquell::recording {

namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

struct Character {
    char32_t code = kInvalid;
    std::size_t length = 1;
    bool cut = false; ///< the text ends before the character does
};

std::size_t lengthByLead(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

Character decode(std::string_view text) {
    constexpr std::array<char32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000}; // less would be an overlong form
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lengthByLead(lead);
    if (length <= 1) {
        return length == 1 ? Character{lead} : Character{};
    }
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i == text.size()) {
            return {.cut = true};
        }
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80) {
            return {};
        }
        code = (code << 6U) | (byte & 0x3FU);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < kLeast.at(length) || surrogate || code > 0x10FFFF ? Character{} : Character{code, length};
}

/// Everything that both a terminal and YAML take for a character within a line.
bool isPrintable(char32_t code) {
    const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool lineBreak = code == 0x2028 || code == 0x2029;
    const bool noCharacter = code == 0xFEFF || code == 0xFFFE || code == 0xFFFF || code == kInvalid;
    return !control && !lineBreak && !noCharacter;
}

bool isPlain(char c) {
    return c >= 0x20 && c < 0x7F;
}

bool isLayout(char32_t code) {
    return code == '\t' || code == '\n' || code == '\r';
}

} // namespace

std::string cleanName(std::string_view name) {
    std::string clean;
    while (!name.empty()) {
        const Character next = decode(name);
        const bool printable = isPrintable(next.code);
        if (clean.size() + (printable ? next.length : 1) > kMaximumName) {
            break;
        }
        clean += printable ? name.substr(0, next.length) : "?";
        name.remove_prefix(next.length);
    }
    return clean;
}

std::size_t appendCleanLines(std::string &clean, std::string_view text, bool last) {
    const std::size_t size = text.size();
    for (;;) {
        // Nearly everything is ASCII; it is copied in runs.
        const auto *const special = std::find_if_not(text.begin(), text.end(), isPlain);
        clean.append(text.begin(), special);
        text.remove_prefix(static_cast<std::size_t>(special - text.begin()));
        if (text.empty()) {
            break;
        }
        const Character next = decode(text);
        if (next.cut && !last) {
            break;
        }
        clean += isPrintable(next.code) || isLayout(next.code) ? text.substr(0, next.length) : "?";
        text.remove_prefix(next.length);
    }
    return size - text.size();
}

} // namespace barquell::recording
