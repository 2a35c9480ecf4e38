#include "shortcuts/Shortcut.h"

#include "support/Place.h"

#include <gmock/gmock.h>

#include <type_traits>

namespace barquell::test {

static_assert(!std::is_default_constructible_v<Shortcut>, "a shortcut is only made with a key and flags");

namespace {

class ShortcutTest : public testing::Test {
protected:
    ShortcutTest() { place(); }
};

QString name(std::uint64_t keyCode) {
    return Shortcut(keyCode, 0).keyCodeString().value_or(QStringLiteral("(none)"));
}

} // namespace

TEST_F(ShortcutTest, AFunctionKeyAloneIsValid) {
    const Shortcut shortcut(96, 0);
    EXPECT_EQ(shortcut.keyCodeString(), QStringLiteral("F5"));
    EXPECT_EQ(shortcut.modifierFlagsString(), QString());
    EXPECT_TRUE(shortcut.validate());
}

TEST_F(ShortcutTest, ShiftAloneDoesNotMakeALetterValid) {
    EXPECT_FALSE(Shortcut(0, 0x20000).validate());
    EXPECT_FALSE(Shortcut(0, 0).validate());
}

TEST_F(ShortcutTest, ControlOptionOrCommandMakesALetterValid) {
    EXPECT_TRUE(Shortcut::validate(0, 0x40000));
    EXPECT_TRUE(Shortcut::validate(0, 0x80000));
    EXPECT_TRUE(Shortcut::validate(0, 0x100000));
    EXPECT_TRUE(Shortcut::validate(0, 0x120000));
}

TEST_F(ShortcutTest, CapsLockAndFnDoNotMakeALetterValid) {
    EXPECT_FALSE(Shortcut::validate(0, 0x10000));
    EXPECT_FALSE(Shortcut::validate(0, 0x800000));
}

TEST_F(ShortcutTest, ExactlyTheTwentyFunctionKeysAreValidAlone) {
    std::vector<std::uint64_t> valid;
    for (std::uint64_t keyCode = 0; keyCode < 0x10000; ++keyCode) {
        if (Shortcut::validate(keyCode, 0)) {
            valid.push_back(keyCode);
        }
    }
    EXPECT_THAT(valid, testing::ElementsAre(64, 79, 80, 90, 96, 97, 98, 99, 100, 101, 103, 105, 106, 107, 109,
                                            111, 113, 118, 120, 122));
}

TEST_F(ShortcutTest, TheDescriptionNamesKeyCodeAndFlags) {
    EXPECT_EQ(Shortcut(0, 0x100000).description(), QStringLiteral("{key=A[0], flags=⌘}"));
    EXPECT_EQ(Shortcut(0x1234, 0).description(), QStringLiteral("{key=(null)[4660], flags=}"));
}

TEST_F(ShortcutTest, ModifierSymbolsStandInTheirOrder) {
    EXPECT_EQ(Shortcut::modifierFlagsString(0x1E0000), QStringLiteral("⌃⌥⇧⌘"));
    EXPECT_EQ(Shortcut::modifierFlagsString(0x120000), QStringLiteral("⇧⌘"));
    EXPECT_EQ(Shortcut::modifierFlagsString(0xFFFFFFFFFFE1FFFF), QString());
}

TEST_F(ShortcutTest, F20IsValidAloneAndHasAnEquivalentButItsNameComesFromTheLayout) {
    const Shortcut shortcut(90, 0);
    EXPECT_TRUE(shortcut.validate());
    EXPECT_EQ(shortcut.keyEquivalentString(), QString(QChar(0xF717)));
    EXPECT_EQ(shortcut.keyCodeString(), std::nullopt); // which types nothing with this key
}

TEST_F(ShortcutTest, TheMissingKeyHasTheEmptyName) {
    EXPECT_EQ(Shortcut(0x7FFFFFFFFFFFFFFF, 0).keyCodeString(), QString());
}

TEST_F(ShortcutTest, TheLayoutsNameIsInUpperCase) {
    EXPECT_EQ(name(32), QStringLiteral("U"));
    EXPECT_EQ(name(50), QStringLiteral("`"));
}

TEST_F(ShortcutTest, TheLayoutIsAskedForTheLowSixteenBits) {
    EXPECT_EQ(name(0x10000 + 32), QStringLiteral("U"));
}

TEST_F(ShortcutTest, WithoutALayoutOtherKeysHaveNoName) {
    installPlatform({});
    const Shortcut letter(0, 0);
    EXPECT_EQ(letter.keyCodeString(), std::nullopt);
    EXPECT_EQ(letter.keyEquivalentString(), std::nullopt);
    EXPECT_EQ(name(36), QStringLiteral("↩"));
}

TEST_F(ShortcutTest, ACopyNamesItsKeyAnew) {
    const Shortcut shortcut(0, 0x100000, QStringLiteral("Q"));
    EXPECT_EQ(shortcut.keyCodeString(), QStringLiteral("Q"));
    const Shortcut copy = shortcut.copy();
    EXPECT_EQ(copy.keyCodeString(), QStringLiteral("A"));
    EXPECT_EQ(copy.keyCode(), 0U);
    EXPECT_EQ(copy.modifierFlags(), 0x100000U);
}

TEST_F(ShortcutTest, AKeyEventGivesItsKeyAndTheFourModifiersAlone) {
    KeyEvent event;
    event.keyCode = 96;
    event.modifierFlags = 0x10000 | 0x800000 | 0x1E0000 | kFlagLeftCommand; // Caps Lock and Fn among them
    const Shortcut shortcut = Shortcut::shortcutFromKeyEvent(event);
    EXPECT_EQ(shortcut.keyCode(), 96U);
    EXPECT_EQ(shortcut.modifierFlags(), 0x1E0000U);
}

} // namespace barquell::test
