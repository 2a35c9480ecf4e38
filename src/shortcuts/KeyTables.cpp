#include "shortcuts/KeyTables.h"

#include <algorithm>
#include <array>

namespace barquell {

namespace {

struct Name {
    std::uint64_t keyCode;
    QStringView text;
};

struct Equivalent {
    std::uint64_t keyCode;
    char16_t character;
};

/// F1 to F20 in their order. F20 alone has no fixed name.
constexpr std::array<std::uint64_t, 20> kFunctionKeys{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                      103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
constexpr std::size_t kNamedFunctionKeys = 19;
constexpr char16_t kF1Character = 0xF704; // NSF1FunctionKey; the others follow it

constexpr std::array kNames{
    Name{kKeyReturn, u"↩"}, Name{kKeyTab, u"⇥"}, Name{49, u"⌴"},  Name{51, u"⌫"},  Name{kKeyEscape, u"⎋"},
    Name{65, u"."},         Name{67, u"*"},      Name{69, u"+"},  Name{71, u"⌧"},  Name{75, u"/"},
    Name{76, u"⌅"},         Name{78, u"–"},      Name{81, u"="},  Name{82, u"0"},  Name{83, u"1"},
    Name{84, u"2"},         Name{85, u"3"},      Name{86, u"4"},  Name{87, u"5"},  Name{88, u"6"},
    Name{89, u"7"},         Name{91, u"8"},      Name{92, u"9"},  Name{114, u"?"}, Name{115, u"↖"},
    Name{116, u"⇞"},        Name{117, u"⌦"},     Name{119, u"↘"}, Name{121, u"⇟"}, Name{123, u"←"},
    Name{124, u"→"},        Name{125, u"↓"},     Name{126, u"↑"},
};

constexpr std::array kEquivalents{
    Equivalent{kKeyReturn, u'\r'}, Equivalent{kKeyTab, u'\t'}, Equivalent{49, u' '}, Equivalent{51, u'\b'},
    Equivalent{kKeyEscape, 0x1B},  Equivalent{126, 0xF700}, // NSUpArrowFunctionKey
    Equivalent{125, 0xF701},                                // NSDownArrowFunctionKey
    Equivalent{123, 0xF702},                                // NSLeftArrowFunctionKey
    Equivalent{124, 0xF703},                                // NSRightArrowFunctionKey
    Equivalent{117, 0xF728},                                // NSDeleteFunctionKey
    Equivalent{115, 0xF729},                                // NSHomeFunctionKey
    Equivalent{119, 0xF72B},                                // NSEndFunctionKey
    Equivalent{116, 0xF72C},                                // NSPageUpFunctionKey
    Equivalent{121, 0xF72D},                                // NSPageDownFunctionKey
    Equivalent{114, 0xF746},                                // NSHelpFunctionKey
};

/// 0 for F1; nothing for keys that are no function keys.
std::optional<std::size_t> functionKeyIndex(std::uint64_t keyCode) {
    const auto *const found = std::find(kFunctionKeys.begin(), kFunctionKeys.end(), keyCode);
    if (found == kFunctionKeys.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - kFunctionKeys.begin());
}

template <typename Table>
auto entryFor(const Table &table, std::uint64_t keyCode) {
    return std::find_if(table.begin(), table.end(),
                        [keyCode](const auto &entry) { return entry.keyCode == keyCode; });
}

} // namespace

std::optional<QString> fixedKeyName(std::uint64_t keyCode) {
    const auto index = functionKeyIndex(keyCode);
    if (index && *index < kNamedFunctionKeys) {
        return QStringLiteral("F%1").arg(*index + 1);
    }
    const auto *const entry = entryFor(kNames, keyCode);
    return entry == kNames.end() ? std::nullopt : std::optional(entry->text.toString());
}

std::optional<QString> fixedKeyEquivalent(std::uint64_t keyCode) {
    if (const auto index = functionKeyIndex(keyCode)) {
        return QString(QChar(static_cast<char16_t>(kF1Character + *index)));
    }
    const auto *const entry = entryFor(kEquivalents, keyCode);
    return entry == kEquivalents.end() ? std::nullopt : std::optional(QString(QChar(entry->character)));
}

bool isFunctionKey(std::uint64_t keyCode) {
    return functionKeyIndex(keyCode).has_value();
}

} // namespace barquell
