#include "platform/linux/keys/Keymap.h"
#include "platform/linux/keys/XkbKeyboardLayout.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

/// What the layouts call a key, by virtual code.
QString name(const char *layouts, std::uint16_t keyCode, const char *variants = "") {
    const XkbKeyboardLayout layout([=] { return Keymap::fromNames(layouts, variants); });
    return layout.displayName(keyCode).value_or(QStringLiteral("(none)"));
}

constexpr std::uint16_t kA = 0;
constexpr std::uint16_t kIso = 10;
constexpr std::uint16_t kQ = 12;
constexpr std::uint16_t kY = 16;
constexpr std::uint16_t kEqual = 24;
constexpr std::uint16_t kMinus = 27;
constexpr std::uint16_t kLeftBracket = 33;
constexpr std::uint16_t kGrave = 50;
constexpr std::uint16_t kOne = 18;
constexpr std::uint16_t kF20 = 90;

} // namespace

TEST(KeymapTest, UsKeysAreNamedAsPrinted) {
    EXPECT_EQ(name("us", kA), QStringLiteral("a"));
    EXPECT_EQ(name("us", kY), QStringLiteral("y"));
    EXPECT_EQ(name("us", kMinus), QStringLiteral("-"));
    EXPECT_EQ(name("us", kGrave), QStringLiteral("`"));
}

TEST(KeymapTest, GermanKeysAreNamedAsPrinted) {
    EXPECT_EQ(name("de", kY), QStringLiteral("z"));
    EXPECT_EQ(name("de", kMinus), QStringLiteral("ß"));
    EXPECT_EQ(name("de", kLeftBracket), QStringLiteral("ü"));
    EXPECT_EQ(name("de", kIso), QStringLiteral("<"));
}

TEST(KeymapTest, GermanDeadKeysHaveTheirSpacingForm) {
    EXPECT_EQ(name("de", kGrave), QStringLiteral("^"));
    EXPECT_EQ(name("de", kEqual), QStringLiteral("´"));
}

TEST(KeymapTest, FrenchKeysAreNamedAsPrinted) {
    EXPECT_EQ(name("fr", kQ), QStringLiteral("a"));
    EXPECT_EQ(name("fr", kA), QStringLiteral("q"));
    EXPECT_EQ(name("fr", kOne), QStringLiteral("&"));
}

TEST(KeymapTest, AFrenchDeadKeyHasItsSpacingForm) {
    EXPECT_EQ(name("fr", kLeftBracket), QStringLiteral("^"));
}

TEST(KeymapTest, RussianPlusUsIsNamedByUs) {
    EXPECT_EQ(name("ru,us", kA), QStringLiteral("a"));
    EXPECT_EQ(name("us,ru", kA), QStringLiteral("a"));
}

TEST(KeymapTest, TheFirstLayoutThatTypesAsciiCounts) {
    EXPECT_EQ(name("ru,fr,us", kQ), QStringLiteral("a"));
    EXPECT_EQ(name("us,us", kQ, "dvorak,"), QStringLiteral("'"));
}

TEST(KeymapTest, RussianAloneIsNamedByTheUsLayout) {
    EXPECT_EQ(name("ru", kA), QStringLiteral("a"));
}

TEST(KeymapTest, WithoutAKeyboardTheUsLayoutNames) {
    const XkbKeyboardLayout layout([] { return std::nullopt; });
    EXPECT_EQ(layout.displayName(kQ), QStringLiteral("q"));
}

TEST(KeymapTest, KeysThatTypeNothingHaveNoName) {
    EXPECT_EQ(name("us", kF20), QStringLiteral("(none)"));
    EXPECT_EQ(name("us", 56), QStringLiteral("(none)"));   // Shift
    EXPECT_EQ(name("us", 0x34), QStringLiteral("(none)")); // no such key
    EXPECT_EQ(name("us", 53), QStringLiteral("(none)"));   // Escape, a control character
}

TEST(KeymapTest, ALayoutThatDoesNotExistIsNoKeymap) {
    EXPECT_FALSE(Keymap::fromNames("no-such-layout"));
}

TEST(KeymapTest, CharactersFollowTheLayoutInUseAndShiftAlone) {
    const auto keymap = Keymap::fromNames("us,ru");
    ASSERT_TRUE(keymap);
    const XKeyCode a = *xKeyCodeForVirtualKey(kA);
    EXPECT_EQ(keymap->characters(a, 0, false), QStringLiteral("a"));
    EXPECT_EQ(keymap->characters(a, 0, true), QStringLiteral("A"));
    EXPECT_EQ(keymap->characters(a, 1, false), QStringLiteral("ф"));
    EXPECT_EQ(keymap->characters(*xKeyCodeForVirtualKey(kOne), 0, true), QStringLiteral("!"));
    EXPECT_EQ(keymap->characters(*xKeyCodeForVirtualKey(96), 0, false), QString());
}

} // namespace barquell::test
