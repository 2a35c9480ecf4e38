#include "CaptureFixture.h"

#include "foundation/interface/InterfaceClasses.h"
#include "shortcuts/controls/ShortcutControls.h"

namespace barquell::test {

namespace {

using ShortcutCaptureTest = CaptureFixture;

QVariantList storedForm(std::uint64_t keyCode, ModifierFlags flags) {
    return Shortcut::storageRepresentation(keyCode, flags);
}

} // namespace

TEST_F(ShortcutCaptureTest, ShowsTheShortcutAtOnceAndTheClearButtonWithIt) {
    setStored(storedForm(32, 0x1C0000));
    show();
    EXPECT_EQ(recorder->text(), QStringLiteral("⌃⌥⌘U"));
    EXPECT_TRUE(clearButton->isVisible());
}

TEST_F(ShortcutCaptureTest, ShowsDotsAndNoClearButtonWithoutAShortcut) {
    show();
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
    EXPECT_FALSE(clearButton->isVisible());
}

TEST_F(ShortcutCaptureTest, TheSwitchDoesNotChangeTheTitle) {
    setStored(storedForm(96, 0));
    show();
    setEnabledSetting(false);
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
}

TEST_F(ShortcutCaptureTest, FollowsWhatIsStoredElsewhere) {
    show();
    setStored(storedForm(96, 0));
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
}

TEST_F(ShortcutCaptureTest, ClearingStoresTheEmptyList) {
    setStored(storedForm(96, 0));
    show();
    QTest::mouseClick(clearButton, Qt::LeftButton);
    EXPECT_EQ(stored(), QVariant(QVariantList{}));
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
    EXPECT_FALSE(clearButton->isVisible());
}

TEST_F(ShortcutCaptureTest, TheCheckBoxEditsTheSettingAndFollowsIt) {
    show();
    EXPECT_TRUE(checkbox->isChecked());
    QTest::mouseClick(checkbox, Qt::LeftButton, {}, QPoint(5, checkbox->height() / 2));
    const QString key = name() + QStringLiteral("Enabled");
    EXPECT_EQ(UserDefaults::standard().objectForKey(key), QVariant(false));
    setEnabledSetting(true);
    EXPECT_TRUE(checkbox->isChecked());
}

TEST_F(ShortcutCaptureTest, WhileSwitchedOffBothButtonsAreDisabled) {
    setStored(storedForm(96, 0));
    show();
    setEnabledSetting(false);
    EXPECT_FALSE(recorder->isEnabled());
    EXPECT_FALSE(clearButton->isEnabled());
    EXPECT_TRUE(checkbox->isEnabled());
    setEnabledSetting(true);
    EXPECT_TRUE(recorder->isEnabled());
    EXPECT_TRUE(clearButton->isEnabled());
}

TEST_F(ShortcutCaptureTest, WithoutANameOnlyTheClearButtonIsWired) {
    recorder->setShortcutName({});
    recorder->setText(QStringLiteral("as in the file"));
    show();
    EXPECT_EQ(recorder->text(), QStringLiteral("as in the file"));
    QTest::mouseClick(clearButton, Qt::LeftButton);
    EXPECT_FALSE(stored().isValid());
    QTest::mouseClick(recorder, Qt::LeftButton);
    press(Qt::Key_F5);
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
}

TEST_F(ShortcutCaptureTest, ClickingStartsToCapture) {
    setStored(storedForm(96, 0));
    startCapturing();
    EXPECT_EQ(recorder->text(), QString());
    EXPECT_FALSE(clearButton->isVisible());
}

TEST_F(ShortcutCaptureTest, ClickingADisabledButtonDoesNotStartToCapture) {
    setStored(storedForm(96, 0));
    setEnabledSetting(false);
    show();
    QTest::mouseClick(recorder, Qt::LeftButton);
    EXPECT_FALSE(recorder->hasFocus());
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureTest, APlainLetterBeepsAndGoesOn) {
    startCapturing();
    press(Qt::Key_A);
    EXPECT_EQ(beeps(), 1);
    EXPECT_TRUE(isCapturing());
    EXPECT_FALSE(stored().isValid());
}

TEST_F(ShortcutCaptureTest, AFunctionKeyAloneIsStored) {
    startCapturing();
    press(Qt::Key_F5);
    EXPECT_EQ(stored(), QVariant(storedForm(96, 0)));
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
    EXPECT_TRUE(clearButton->isVisible());
    EXPECT_EQ(beeps(), 0);
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureTest, ShiftAloneBeeps) {
    startCapturing();
    press(Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(beeps(), 1);
    EXPECT_TRUE(isCapturing());
}

TEST_F(ShortcutCaptureTest, CommandShiftAIsStoredWithItsSymbolsInOrder) {
    startCapturing();
    press(Qt::Key_A, Qt::MetaModifier | Qt::ShiftModifier);
    EXPECT_EQ(stored(), QVariant(storedForm(0, 0x120000)));
    EXPECT_EQ(recorder->text(), QStringLiteral("⇧⌘A"));
}

TEST_F(ShortcutCaptureTest, EscapeGivesUpAndShowsTheOldTitle) {
    setStored(storedForm(96, 0));
    startCapturing();
    press(Qt::Key_Escape);
    EXPECT_EQ(recorder->text(), QStringLiteral("F5"));
    EXPECT_EQ(stored(), QVariant(storedForm(96, 0)));
    EXPECT_EQ(beeps(), 0);
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureTest, EscapeWithShiftGivesUpToo) {
    startCapturing();
    press(Qt::Key_Escape, Qt::ShiftModifier);
    EXPECT_EQ(recorder->text(), QStringLiteral("..."));
    EXPECT_FALSE(isCapturing());
}

TEST_F(ShortcutCaptureTest, CommandEscapeIsStored) {
    startCapturing();
    press(Qt::Key_Escape, Qt::MetaModifier);
    EXPECT_EQ(stored(), QVariant(storedForm(53, 0x100000)));
    EXPECT_EQ(recorder->text(), QStringLiteral("⌘⎋"));
}

TEST_F(ShortcutCaptureTest, TheModifiersHeldAreShownLive) {
    startCapturing();
    QTest::keyPress(window.windowHandle(), Qt::Key_Control);
    EXPECT_EQ(recorder->text(), QStringLiteral("⌃"));
    QTest::keyPress(window.windowHandle(), Qt::Key_Alt, Qt::ControlModifier);
    EXPECT_EQ(recorder->text(), QStringLiteral("⌃⌥"));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier | Qt::AltModifier);
    QCoreApplication::sendEvent(recorder, &release); // QTest would release both
    EXPECT_EQ(recorder->text(), QStringLiteral("⌥"));
}

TEST_F(ShortcutCaptureTest, KeysDoNothingElseMeanwhile) {
    QAction command;
    command.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    window.addAction(&command);
    int triggered = 0;
    QObject::connect(&command, &QAction::triggered, &command, [&] { ++triggered; });
    startCapturing();
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(triggered, 0);
    EXPECT_EQ(recorder->text(), QStringLiteral("⌃K"));
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(triggered, 1); // and is a key of the window again
}

TEST_F(ShortcutCaptureTest, SpaceAndReturnAreKeysLikeOthers) {
    startCapturing();
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(beeps(), 2);
    EXPECT_TRUE(isCapturing());
}

TEST_F(ShortcutCaptureTest, AScreenReaderHearsTheKeysInWords) {
    setStored(storedForm(32, 0xC0000));
    show();
    EXPECT_EQ(recorder->accessibleDescription(), QStringLiteral("Ctrl+Alt+U"));
    setStored({});
    EXPECT_EQ(recorder->accessibleDescription(), QString());
}

TEST_F(ShortcutCaptureTest, InterfaceFilesKnowTheControlsByName) {
    registerShortcutControls();
    EXPECT_TRUE(qobject_cast<ShortcutCaptureButton *>(
        InterfaceClasses::makeWidget(QStringLiteral("ShortcutCaptureButton"), nullptr).get()));
    EXPECT_TRUE(InterfaceClasses::makeObject(QStringLiteral("ShortcutMenuItem")));
    EXPECT_TRUE(recorder->setProperty("clearButton", QVariant::fromValue<QObject *>(last)));
    EXPECT_EQ(recorder->clearButton(), last);
    EXPECT_TRUE(recorder->setProperty("enabledCheckbox", QVariant::fromValue<QObject *>(last)));
    EXPECT_TRUE(recorder->setProperty("shortcutName", QStringLiteral("Sound")));
    EXPECT_EQ(recorder->shortcutName(), QStringLiteral("Sound"));
}

} // namespace barquell::test
