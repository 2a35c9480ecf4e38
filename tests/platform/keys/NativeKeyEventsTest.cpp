#include "platform/linux/keys/NativeKeyEvents.h"

#include <QKeyEvent>

#include <gmock/gmock.h>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace barquell::test {

namespace {

/// Reads events as X11 delivers them: with the modifiers as they were before.
class NativeKeyEventsTest : public testing::Test {
protected:
    struct Given {
        int evdevCode;
        xkb_keysym_t keysym;
        Qt::KeyboardModifiers before;
    };

    std::optional<KeyEvent> press(const Given &given, KeyMeanings meanings = KeyMeanings::Physical) const {
        return read(QEvent::KeyPress, given, meanings);
    }
    std::optional<KeyEvent> release(const Given &given, KeyMeanings meanings = KeyMeanings::Physical) const {
        return read(QEvent::KeyRelease, given, meanings);
    }

    /// The keyboard as the server sees it when it is asked.
    void holdDown(int evdevCode) { _down[static_cast<std::size_t>(evdevCode) + 8] = true; }

    std::uint32_t state = 0;

private:
    std::optional<KeyEvent> read(QEvent::Type type, const Given &given, KeyMeanings meanings) const {
        const NativeKeyEvents events({[] { return Keymap::fromNames("us,ru"); }, [this] { return _down; }});
        return events.keyEvent(
            QKeyEvent(type, 0, given.before, static_cast<quint32>(given.evdevCode + 8), given.keysym, state),
            meanings);
    }

    RunningKeymap::KeysDown _down;
};

} // namespace

TEST_F(NativeKeyEventsTest, AKeyDownHasItsVirtualCodeAndCharacters) {
    const auto event = press({KEY_U, XKB_KEY_u, Qt::NoModifier});
    ASSERT_TRUE(event);
    EXPECT_EQ(event->type, KeyEvent::Type::KeyDown);
    EXPECT_EQ(event->keyCode, 32);
    EXPECT_EQ(event->charactersIgnoringModifiers, QStringLiteral("u"));
    EXPECT_FALSE(event->isARepeat);
}

TEST_F(NativeKeyEventsTest, ModifiersButShiftDoNotChangeTheCharacters) {
    EXPECT_EQ(press({KEY_1, XKB_KEY_1, Qt::ControlModifier | Qt::AltModifier})->charactersIgnoringModifiers,
              QStringLiteral("1"));
    EXPECT_EQ(press({KEY_U, XKB_KEY_U, Qt::ControlModifier | Qt::ShiftModifier})->charactersIgnoringModifiers,
              QStringLiteral("U"));
}

TEST_F(NativeKeyEventsTest, TheLayoutInUseGivesTheCharacters) {
    state = 1U << 13;
    EXPECT_EQ(press({KEY_A, XKB_KEY_Cyrillic_ef, Qt::NoModifier})->charactersIgnoringModifiers,
              QStringLiteral("ф"));
}

TEST_F(NativeKeyEventsTest, ReleasesOfOrdinaryKeysMeanNothing) {
    EXPECT_FALSE(release({KEY_U, XKB_KEY_u, Qt::NoModifier}));
}

TEST_F(NativeKeyEventsTest, KeysWithoutAVirtualCodeMeanNothing) {
    EXPECT_FALSE(press({KEY_PLAYPAUSE, XKB_KEY_NoSymbol, Qt::NoModifier}));
    EXPECT_FALSE(press({-8, XKB_KEY_u, Qt::NoModifier})); // made up by a program, without a key
}

TEST_F(NativeKeyEventsTest, PhysicallySuperIsCommandAndControlIsControl) {
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::MetaModifier})->modifierFlags, kFlagCommand);
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::ControlModifier})->modifierFlags, kFlagControl);
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::AltModifier})->modifierFlags, kFlagOption);
    EXPECT_EQ(press({KEY_U, XKB_KEY_U, Qt::ShiftModifier})->modifierFlags, kFlagShift);
}

TEST_F(NativeKeyEventsTest, InOurWindowsControlStandsForCommand) {
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::ControlModifier}, KeyMeanings::Window)->modifierFlags,
              kFlagCommand);
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::MetaModifier}, KeyMeanings::Window)->modifierFlags, kFlagControl);
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::AltModifier}, KeyMeanings::Window)->modifierFlags, kFlagOption);
}

TEST_F(NativeKeyEventsTest, FlagsAreThoseAfterAModifierWentDown) {
    const auto event = press({KEY_LEFTSHIFT, XKB_KEY_Shift_L, Qt::ControlModifier});
    ASSERT_TRUE(event);
    EXPECT_EQ(event->type, KeyEvent::Type::FlagsChanged);
    EXPECT_EQ(event->keyCode, 56);
    EXPECT_EQ(event->modifierFlags, kFlagControl | kFlagShift | kFlagLeftShift);
}

TEST_F(NativeKeyEventsTest, FlagsAreThoseAfterAModifierWentUp) {
    holdDown(KEY_LEFTSHIFT); // the server may be asked before or after
    const auto event = release({KEY_LEFTSHIFT, XKB_KEY_Shift_L, Qt::ControlModifier | Qt::ShiftModifier});
    ASSERT_TRUE(event);
    EXPECT_EQ(event->modifierFlags, kFlagControl);
}

TEST_F(NativeKeyEventsTest, AModifierStaysWhileItsOtherKeyIsDown) {
    holdDown(KEY_RIGHTSHIFT);
    const auto event = release({KEY_LEFTSHIFT, XKB_KEY_Shift_L, Qt::ShiftModifier});
    EXPECT_EQ(event->modifierFlags, kFlagShift | kFlagRightShift);
}

TEST_F(NativeKeyEventsTest, TheSidesOfModifiersAreTold) {
    holdDown(KEY_RIGHTCTRL);
    holdDown(KEY_LEFTMETA);
    EXPECT_EQ(press({KEY_U, XKB_KEY_u, Qt::ControlModifier | Qt::MetaModifier})->modifierFlags,
              kFlagControl | kFlagRightControl | kFlagCommand | kFlagLeftCommand);
    EXPECT_EQ(
        press({KEY_U, XKB_KEY_u, Qt::ControlModifier | Qt::MetaModifier}, KeyMeanings::Window)->modifierFlags,
        kFlagCommand | kFlagRightCommand | kFlagControl | kFlagLeftControl);
}

TEST_F(NativeKeyEventsTest, AltWithShiftIsStillAlt) {
    const auto event = press({KEY_LEFTALT, XKB_KEY_Meta_L, Qt::ShiftModifier});
    EXPECT_EQ(event->type, KeyEvent::Type::FlagsChanged);
    EXPECT_EQ(event->modifierFlags, kFlagShift | kFlagOption | kFlagLeftOption);
}

TEST_F(NativeKeyEventsTest, CapsLockAndAltGrAreModifiersWithoutAFlag) {
    for (const Given &given : {Given{KEY_CAPSLOCK, XKB_KEY_Caps_Lock, Qt::NoModifier},
                               Given{KEY_RIGHTALT, XKB_KEY_ISO_Level3_Shift, Qt::NoModifier}}) {
        const auto event = press(given);
        ASSERT_TRUE(event);
        EXPECT_EQ(event->type, KeyEvent::Type::FlagsChanged);
        EXPECT_EQ(event->modifierFlags, 0U);
    }
}

TEST_F(NativeKeyEventsTest, ShiftTabIsAKey) {
    const auto event = press({KEY_TAB, XKB_KEY_ISO_Left_Tab, Qt::ShiftModifier});
    EXPECT_EQ(event->type, KeyEvent::Type::KeyDown);
    EXPECT_EQ(event->keyCode, 48);
}

TEST_F(NativeKeyEventsTest, RepetitionIsTold) {
    const NativeKeyEvents events({[] { return std::nullopt; }, [] { return RunningKeymap::KeysDown(); }});
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_U, Qt::NoModifier, KEY_U + 8, XKB_KEY_u, 0,
                          QStringLiteral("u"), true);
    EXPECT_TRUE(events.keyEvent(event, KeyMeanings::Physical)->isARepeat);
    EXPECT_EQ(events.keyEvent(event, KeyMeanings::Physical)->charactersIgnoringModifiers,
              QStringLiteral("u"));
}

} // namespace barquell::test
