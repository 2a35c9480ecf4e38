#include "CaptureFixture.h"

namespace barquell::test {

namespace {

using ShortcutCaptureFocusTest = CaptureFixture;

} // namespace

TEST_F(ShortcutCaptureFocusTest, AStoredShortcutLeavesTheFocusToTheWidgetAround) {
    startCapturing();
    press(Qt::Key_F5);
    EXPECT_TRUE(window.hasFocus());
    EXPECT_FALSE(recorder->hasFocus());
}

TEST_F(ShortcutCaptureFocusTest, TheNextTabThenGoesOnBehindTheRecorder) {
    startCapturing();
    press(Qt::Key_F5);
    press(Qt::Key_Tab);
    EXPECT_TRUE(clearButton->hasFocus());
}

TEST_F(ShortcutCaptureFocusTest, TabReachesTheRecorderAndLeavesIt) {
    show();
    press(Qt::Key_Tab);
    EXPECT_TRUE(recorder->hasFocus());
    EXPECT_TRUE(isCapturing());
    press(Qt::Key_Tab);
    EXPECT_TRUE(checkbox->hasFocus()); // with no shortcut there is nothing to clear
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
    EXPECT_EQ(beeps(), 0);
}

TEST_F(ShortcutCaptureFocusTest, TabGoesOnToTheClearButtonOfAShortcut) {
    setStored(Shortcut::storageRepresentation(96, 0));
    startCapturing();
    press(Qt::Key_Tab);
    EXPECT_TRUE(clearButton->hasFocus());
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
}

TEST_F(ShortcutCaptureFocusTest, ShiftTabGoesBack) {
    startCapturing();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(first->hasFocus());
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureFocusTest, ControlTabIsAShortcut) {
    startCapturing();
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(recorder->text(), QStringLiteral("⌃⇥"));
}

TEST_F(ShortcutCaptureFocusTest, LeavingTheRecorderShowsTheOldTitle) {
    setStored(Shortcut::storageRepresentation(96, 0));
    startCapturing();
    last->setFocus();
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
    EXPECT_TRUE(clearButton->isVisible());
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureFocusTest, MovingToAnotherWindowStopsToCapture) {
    setStored(Shortcut::storageRepresentation(96, 0));
    startCapturing();
    QWidget elsewhere;
    recorder->setParent(&elsewhere);
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureFocusTest, ARecorderThatGoesAwayWhileItCapturesLeavesTheKeysAlone) {
    startCapturing();
    delete recorder; // NOLINT(cppcoreguidelines-owning-memory): before its window
    last->setFocus();
    int clicks = 0;
    QObject::connect(last, &QPushButton::clicked, last, [&] { ++clicks; });
    press(Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ShortcutCaptureFocusTest, SwitchingOffWhileItCapturesStopsIt) {
    startCapturing();
    setEnabledSetting(false);
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
    EXPECT_FALSE(isCapturing());
}

} // namespace barquell::test
