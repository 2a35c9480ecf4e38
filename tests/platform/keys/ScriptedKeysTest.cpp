#include "platform/linux/keys/XkbKeyboardLayout.h"
#include "support/Place.h"

#include <QKeyEvent>

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

KeyEvent read(const QKeyEvent &event, KeyMeanings meanings = KeyMeanings::Physical) {
    return place().platform.keyEvents.keyEvent(event, meanings).value_or(KeyEvent{});
}

} // namespace

TEST(ScriptedKeysTest, TheFixedLayoutSaysWhatTheRealUsLayoutSays) {
    const XkbKeyboardLayout real([] { return Keymap::fromNames("us"); });
    int named = 0;
    for (std::uint16_t keyCode = 0; keyCode < 0x80; ++keyCode) {
        if (const auto name = FixedKeyboardLayout().displayName(keyCode)) {
            EXPECT_EQ(real.displayName(keyCode), name) << keyCode;
            ++named;
        }
    }
    EXPECT_EQ(named, 47); // letters, digits and 11 signs
}

TEST(ScriptedKeysTest, AScriptIsReadInItsOrder) {
    KeyEvent next;
    next.keyCode = 96;
    place().platform.keyEvents.script.push_back(next);
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    EXPECT_EQ(read(event).keyCode, 96);
    EXPECT_EQ(read(event).keyCode, 0);
}

TEST(ScriptedKeysTest, WithoutAScriptKeysAreThoseOfAUsKeyboard) {
    const KeyEvent event =
        read(QKeyEvent(QEvent::KeyPress, Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_EQ(event.type, KeyEvent::Type::KeyDown);
    EXPECT_EQ(event.keyCode, 32);
    EXPECT_EQ(event.modifierFlags, kFlagControl | kFlagShift);
    EXPECT_EQ(event.charactersIgnoringModifiers, QStringLiteral("U"));
}

TEST(ScriptedKeysTest, ModifiersMeanWhatTheAskerWants) {
    const QKeyEvent event(QEvent::KeyPress, Qt::Key_1, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(read(event, KeyMeanings::Window).modifierFlags, kFlagCommand | kFlagOption);
    EXPECT_EQ(read(event, KeyMeanings::Physical).modifierFlags, kFlagControl | kFlagOption);
}

TEST(ScriptedKeysTest, FlagsAreThoseAfterTheEvent) {
    const KeyEvent down = read(QKeyEvent(QEvent::KeyPress, Qt::Key_Meta, Qt::ShiftModifier));
    EXPECT_EQ(down.type, KeyEvent::Type::FlagsChanged);
    EXPECT_EQ(down.modifierFlags, kFlagShift | kFlagCommand);
    const KeyEvent up =
        read(QKeyEvent(QEvent::KeyRelease, Qt::Key_Meta, Qt::ShiftModifier | Qt::MetaModifier));
    EXPECT_EQ(up.modifierFlags, kFlagShift);
}

TEST(ScriptedKeysTest, ReleasesOfOrdinaryKeysMeanNothing) {
    const QKeyEvent event(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    EXPECT_FALSE(place().platform.keyEvents.keyEvent(event, KeyMeanings::Physical));
}

} // namespace barquell::test
