#include "shortcuts/Shortcut.h"

#include "support/Place.h"

#include <gmock/gmock.h>

#include <array>

namespace barquell::test {

namespace {

struct Key {
    std::uint64_t keyCode;
    const char16_t *text;
};

constexpr std::array kNames{
    Key{36, u"\u21A9"},  Key{48, u"\u21E5"},  Key{49, u"\u2334"},  Key{51, u"\u232B"},  Key{53, u"\u238B"},
    Key{65, u"."},       Key{67, u"*"},       Key{69, u"+"},       Key{71, u"\u2327"},  Key{75, u"/"},
    Key{76, u"\u2305"},  Key{78, u"\u2013"},  Key{81, u"="},       Key{82, u"0"},       Key{83, u"1"},
    Key{84, u"2"},       Key{85, u"3"},       Key{86, u"4"},       Key{87, u"5"},       Key{88, u"6"},
    Key{89, u"7"},       Key{91, u"8"},       Key{92, u"9"},       Key{122, u"F1"},     Key{120, u"F2"},
    Key{99, u"F3"},      Key{118, u"F4"},     Key{96, u"F5"},      Key{97, u"F6"},      Key{98, u"F7"},
    Key{100, u"F8"},     Key{101, u"F9"},     Key{109, u"F10"},    Key{103, u"F11"},    Key{111, u"F12"},
    Key{105, u"F13"},    Key{107, u"F14"},    Key{113, u"F15"},    Key{106, u"F16"},    Key{64, u"F17"},
    Key{79, u"F18"},     Key{80, u"F19"},     Key{114, u"?"},      Key{115, u"\u2196"}, Key{116, u"\u21DE"},
    Key{117, u"\u2326"}, Key{119, u"\u2198"}, Key{121, u"\u21DF"}, Key{123, u"\u2190"}, Key{124, u"\u2192"},
    Key{125, u"\u2193"}, Key{126, u"\u2191"},
};

constexpr std::array kEquivalents{
    Key{36, u"\r"},      Key{48, u"\t"},      Key{49, u" "},       Key{51, u"\u0008"},  Key{53, u"\u001B"},
    Key{122, u"\uF704"}, Key{120, u"\uF705"}, Key{99, u"\uF706"},  Key{118, u"\uF707"}, Key{96, u"\uF708"},
    Key{97, u"\uF709"},  Key{98, u"\uF70A"},  Key{100, u"\uF70B"}, Key{101, u"\uF70C"}, Key{109, u"\uF70D"},
    Key{103, u"\uF70E"}, Key{111, u"\uF70F"}, Key{105, u"\uF710"}, Key{107, u"\uF711"}, Key{113, u"\uF712"},
    Key{106, u"\uF713"}, Key{64, u"\uF714"},  Key{79, u"\uF715"},  Key{80, u"\uF716"},  Key{90, u"\uF717"},
    Key{126, u"\uF700"}, Key{125, u"\uF701"}, Key{123, u"\uF702"}, Key{124, u"\uF703"}, Key{117, u"\uF728"},
    Key{115, u"\uF729"}, Key{119, u"\uF72B"}, Key{116, u"\uF72C"}, Key{121, u"\uF72D"}, Key{114, u"\uF746"},
};

} // namespace

TEST(ShortcutKeyTest, EachKeyOfTheTableHasItsNameWithoutAnyLayout) {
    for (const Key &key : kNames) {
        EXPECT_EQ(Shortcut(key.keyCode, 0).keyCodeString(), QString::fromUtf16(key.text)) << key.keyCode;
    }
}

TEST(ShortcutKeyTest, EachKeyThatTypesNothingHasItsCharacterAsEquivalent) {
    for (const Key &key : kEquivalents) {
        EXPECT_EQ(Shortcut(key.keyCode, 0).keyEquivalentString(), QString::fromUtf16(key.text))
            << key.keyCode;
    }
}

TEST(ShortcutKeyTest, EveryOtherKeyHasItsNameInLowerCaseAsEquivalent) {
    place();
    EXPECT_EQ(Shortcut(0, 0).keyEquivalentString(), QStringLiteral("a"));
    EXPECT_EQ(Shortcut(76, 0).keyEquivalentString(), QStringLiteral("⌅"));
    EXPECT_EQ(Shortcut(0, 0, QStringLiteral("Q")).keyEquivalentString(), QStringLiteral("q"));
    EXPECT_EQ(Shortcut(0x1234, 0).keyEquivalentString(), std::nullopt);
}

} // namespace barquell::test
