#include "blocking/Decision.h"

#include <gtest/gtest.h>

#include <array>

namespace barquell::test {

using blocking::maskNames;
using blocking::pauseKeyMask;
using blocking::SidedModifier;
using blocking::withPauseKey;
using blocking::withPauseKeyType;

namespace {

struct Case {
    SidedModifier modifier;
    ModifierFlags generic;
    ModifierFlags left;
    ModifierFlags right;
};

constexpr std::array kCases{
    Case{SidedModifier::Command, 0x100000, 0x8, 0x10},
    Case{SidedModifier::Option, 0x80000, 0x20, 0x40},
    Case{SidedModifier::Control, 0x40000, 0x1, 0x2000},
    Case{SidedModifier::Shift, 0x20000, 0x2, 0x4},
};

} // namespace

TEST(PauseKeyMaskTest, ATypeSetsOneSideAndClearsTheOther) {
    for (const Case &each : kCases) {
        const ModifierFlags left = withPauseKeyType(0, each.modifier, 1);
        EXPECT_EQ(left, each.left);
        EXPECT_EQ(withPauseKeyType(left, each.modifier, 2), each.right);
        EXPECT_EQ(withPauseKeyType(left, each.modifier, 0), 0U);
    }
}

TEST(PauseKeyMaskTest, AnUnknownTypeMeansEitherSide) {
    for (const std::int64_t type :
         {std::int64_t{3}, std::int64_t{-1}, std::int64_t{1} << 32U | 1, INT64_MAX}) {
        EXPECT_EQ(withPauseKeyType(kFlagLeftShift, SidedModifier::Shift, type), 0U) << type;
    }
}

TEST(PauseKeyMaskTest, ATypeLeavesTheOtherModifiersAlone) {
    const ModifierFlags others = kFlagFn | kFlagLeftOption | kFlagRightControl;
    EXPECT_EQ(withPauseKeyType(others, SidedModifier::Command, 2), others | kFlagRightCommand);
}

TEST(PauseKeyMaskTest, AKeyThatIsOnCountsByItsSideWhereOneIsChosen) {
    for (const Case &each : kCases) {
        EXPECT_EQ(pauseKeyMask(each.generic), each.generic);
        EXPECT_EQ(pauseKeyMask(each.generic | each.left), each.left);
        EXPECT_EQ(pauseKeyMask(each.generic | each.right), each.right);
    }
}

TEST(PauseKeyMaskTest, TheSideOfAKeyThatIsOffIsRememberedButDoesNotCount) {
    for (const Case &each : kCases) {
        const ModifierFlags settings = withPauseKey(each.generic | each.left, each.generic, false);
        EXPECT_EQ(settings, each.left);
        EXPECT_EQ(pauseKeyMask(settings), 0U);
        EXPECT_EQ(pauseKeyMask(withPauseKey(settings, each.generic, true)), each.left);
    }
}

TEST(PauseKeyMaskTest, FnHasNoSides) {
    EXPECT_EQ(pauseKeyMask(kFlagFn), 0x800000U);
    EXPECT_EQ(pauseKeyMask(0), 0U);
}

TEST(PauseKeyMaskTest, TheContributionsOfAllKeysAddUp) {
    EXPECT_EQ(pauseKeyMask(kFlagFn | kFlagCommand | kFlagRightCommand | kFlagShift | kFlagLeftOption),
              kFlagFn | kFlagRightCommand | kFlagShift);
}

TEST(PauseKeyMaskTest, TheLogNamesTheBitsInTheirOrder) {
    EXPECT_EQ(maskNames(0), "[]");
    EXPECT_EQ(maskNames(kFlagFn), "[Fn]");
    EXPECT_EQ(maskNames(~ModifierFlags{0}),
              "[Fn|Cmd|CmdL|CmdR|Ctrl|CtrlL|CtrlR|Alt|AltL|AltR|Shift|ShiftL|ShiftR]");
    EXPECT_EQ(maskNames(0x100000), "[Cmd]");
    EXPECT_EQ(maskNames(0x8), "[CmdL]");
    EXPECT_EQ(maskNames(0x10), "[CmdR]");
    EXPECT_EQ(maskNames(0x40000), "[Ctrl]");
    EXPECT_EQ(maskNames(0x1), "[CtrlL]");
    EXPECT_EQ(maskNames(0x2000), "[CtrlR]");
    EXPECT_EQ(maskNames(0x80000), "[Alt]");
    EXPECT_EQ(maskNames(0x20), "[AltL]");
    EXPECT_EQ(maskNames(0x40), "[AltR]");
    EXPECT_EQ(maskNames(0x20000), "[Shift]");
    EXPECT_EQ(maskNames(0x2), "[ShiftL]");
    EXPECT_EQ(maskNames(0x4), "[ShiftR]");
}

} // namespace barquell::test
