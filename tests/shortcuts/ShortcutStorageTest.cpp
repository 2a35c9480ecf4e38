#include "shortcuts/Shortcut.h"

#include "foundation/Observable.h"
#include "foundation/Values.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <limits>

namespace barquell::test {

namespace {

class ShortcutStorageTest : public testing::Test {
protected:
    ShortcutStorageTest() { place(); }
};

std::optional<Shortcut> read(const QVariant &value) {
    return Shortcut::shortcutFromStorageRepresentation(value);
}

} // namespace

TEST_F(ShortcutStorageTest, AListOfTwoNumbersIsAShortcut) {
    const auto shortcut = read(QVariantList{96, 0});
    ASSERT_TRUE(shortcut);
    EXPECT_EQ(shortcut->keyCodeString(), QStringLiteral("F5"));
    EXPECT_EQ(shortcut->modifierFlags(), 0U);
}

TEST_F(ShortcutStorageTest, TheEmptyListIsNoShortcut) {
    EXPECT_FALSE(read(QVariantList{}));
    EXPECT_FALSE(read(Shortcut::emptyStorageRepresentation()));
}

TEST_F(ShortcutStorageTest, AListOfOneIsNoShortcut) {
    EXPECT_FALSE(read(QVariantList{96}));
}

TEST_F(ShortcutStorageTest, TextIsNoShortcut) {
    EXPECT_FALSE(read(QStringLiteral("⌘A")));
}

TEST_F(ShortcutStorageTest, NilAndTheNullObjectAreNoShortcut) {
    EXPECT_FALSE(read({}));
    EXPECT_FALSE(read(nullObject()));
}

TEST_F(ShortcutStorageTest, AThirdElementIsTheName) {
    EXPECT_EQ(read(QVariantList{0, 0x100000, QStringLiteral("Q")})->keyCodeString(), QStringLiteral("Q"));
    EXPECT_EQ(read(QVariantList{0, 0x100000, QStringLiteral("Q"), 7})->keyCodeString(), QStringLiteral("Q"));
}

TEST_F(ShortcutStorageTest, AThirdElementThatIsNoTextIsNoName) {
    EXPECT_EQ(read(QVariantList{0, 0x100000, 7})->keyCodeString(), QStringLiteral("A"));
}

TEST_F(ShortcutStorageTest, TheNameIsNeverStored) {
    EXPECT_EQ(Shortcut(0, 0x100000, QStringLiteral("Q")).storageRepresentation(),
              (QVariantList{qlonglong{0}, qlonglong{0x100000}}));
}

TEST_F(ShortcutStorageTest, WhatIsStoredCanBeStoredAndReadBack) {
    for (const std::uint64_t keyCode :
         {std::uint64_t{96}, std::uint64_t{0x7FFFFFFFFFFFFFFF}, std::numeric_limits<std::uint64_t>::max()}) {
        const QVariantList stored = Shortcut::storageRepresentation(keyCode, 0x1E0000);
        ASSERT_TRUE(storableValue(stored));
        EXPECT_EQ(read(*storableValue(stored))->keyCode(), keyCode);
    }
}

TEST_F(ShortcutStorageTest, NegativeNumbersWrapAround) {
    const auto shortcut = read(QVariantList{-1, -2});
    ASSERT_TRUE(shortcut);
    EXPECT_EQ(shortcut->keyCode(), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(shortcut->modifierFlags(), std::numeric_limits<std::uint64_t>::max() - 1);
    EXPECT_EQ(shortcut->keyCodeString(), std::nullopt);
}

TEST_F(ShortcutStorageTest, HugeNumbersAreReadWithoutHarm) {
    EXPECT_EQ(read(QVariantList{qulonglong{1} << 63, 0})->keyCode(), std::uint64_t{1} << 63);
    EXPECT_EQ(read(QVariantList{1e300, 0})->keyCode(), 0x7FFFFFFFFFFFFFFFU);
    EXPECT_TRUE(read(QVariantList{std::numeric_limits<double>::quiet_NaN(), 0}));
}

TEST_F(ShortcutStorageTest, ElementsThatAreNoNumbersAreNoShortcut) {
    EXPECT_FALSE(read(QVariantList{QStringLiteral("96"), 0}));
    EXPECT_FALSE(read(QVariantList{96, QVariantList{}}));
    EXPECT_FALSE(read(QVariantList{nullObject(), 0}));
}

} // namespace barquell::test
