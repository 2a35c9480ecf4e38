#include "PreferencesWindowFixture.h"

#include <QKeyEvent>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PreferencesKeysTest : public PreferencesWindowFixture {
protected:
    PreferencesKeysTest() {
        show();
        settle();
        TestTab::journal().clear();
    }

    static void press(QWidget &receiver, int code, Qt::KeyboardModifiers modifiers, const char *text) {
        QKeyEvent event(QEvent::KeyPress, code, modifiers, QString::fromLatin1(text));
        QApplication::sendEvent(&receiver, &event);
    }
};

} // namespace

TEST_F(PreferencesKeysTest, CommandAndANumberSelectATab) {
    EXPECT_TRUE(controller->handleKeyDown(key("2", kFlagCommand)));
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
    EXPECT_EQ(stored("PreferencesWindowTabIdentifier"), QStringLiteral("Two"));
    EXPECT_THAT(TestTab::journal(), ElementsAre("Two did load", "Two will appear"));
}

TEST_F(PreferencesKeysTest, TheCurrentTabsOwnKeyIsUsedAndChangesNothing) {
    EXPECT_TRUE(controller->handleKeyDown(key("1", kFlagCommand)));
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    EXPECT_THAT(TestTab::journal(), IsEmpty());
    EXPECT_FALSE(stored("PreferencesWindowTabIdentifier").isValid());
}

TEST_F(PreferencesKeysTest, AKeyHeldDownIsUsedAndChangesNothing) {
    EXPECT_TRUE(controller->handleKeyDown(key("1", kFlagCommand, true)));
    EXPECT_TRUE(controller->handleKeyDown(key("2", kFlagCommand, true)));
    EXPECT_TRUE(controller->handleKeyDown(key("0", kFlagOption | kFlagCommand, true)));
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    EXPECT_THAT(TestTab::journal(), IsEmpty());
}

TEST_F(PreferencesKeysTest, CommandZeroFallsThroughToTheCurrentTab) {
    EXPECT_FALSE(controller->handleKeyDown(key("0", kFlagCommand)));
    EXPECT_THAT(current()->keys, ElementsAre(QStringLiteral("0")));
}

TEST_F(PreferencesKeysTest, OptionCommandOneFallsThroughToTheCurrentTab) {
    EXPECT_FALSE(controller->handleKeyDown(key("1", kFlagOption | kFlagCommand)));
    EXPECT_THAT(current()->keys, ElementsAre(QStringLiteral("1")));
    current()->usesKeys = true;
    EXPECT_TRUE(controller->handleKeyDown(key("1", kFlagOption | kFlagCommand)));
}

TEST_F(PreferencesKeysTest, AFurtherModifierFallsThroughToTheCurrentTab) {
    for (const ModifierFlags flags : {kFlagCommand | kFlagShift, kFlagCommand | kFlagControl,
                                      ModifierFlags{0}, kFlagOption | kFlagCommand | kFlagShift}) {
        EXPECT_FALSE(controller->handleKeyDown(key("2", flags)));
        EXPECT_FALSE(controller->handleKeyDown(key("0", flags)));
    }
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
}

TEST_F(PreferencesKeysTest, CapsLockFnAndTheSideDoNotCount) {
    EXPECT_TRUE(controller->handleKeyDown(key("2", kFlagCommand | kFlagRightCommand | kFlagFn | 0x10000)));
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
}

TEST_F(PreferencesKeysTest, TheTenthTabHasNoKey) {
    EXPECT_FALSE(controller->handleKeyDown(key("10", kFlagCommand)));
    EXPECT_FALSE(controller->handleKeyDown(key("0", kFlagCommand)));
}

TEST_F(PreferencesKeysTest, TheExpertTabIsReachedByItsKeyAloneAndNeverRemembered) {
    controller->handleKeyDown(key("2", kFlagCommand));
    EXPECT_TRUE(controller->handleKeyDown(key("0", kFlagOption | kFlagCommand)));
    EXPECT_EQ(controller->currentTab(), controller->expertTab());
    EXPECT_EQ(&content(), controller->expertTab()->view());
    EXPECT_EQ(stored("PreferencesWindowTabIdentifier"), QStringLiteral("Two"));
    EXPECT_FALSE(controller->setCurrentTabIdentifier(QStringLiteral("Expert")));
    open();
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
}

TEST_F(PreferencesKeysTest, WithoutAnExpertTabItsKeyFallsThrough) {
    controller->setExpertTab(nullptr);
    EXPECT_FALSE(controller->handleKeyDown(key("0", kFlagOption | kFlagCommand)));
    EXPECT_THAT(current()->keys, ElementsAre(QStringLiteral("0")));
}

TEST_F(PreferencesKeysTest, InAWindowControlStandsForCommand) {
    press(window(), Qt::Key_2, Qt::ControlModifier, "2");
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
    press(window(), Qt::Key_0, Qt::ControlModifier | Qt::AltModifier, "0");
    EXPECT_EQ(controller->currentTab(), controller->expertTab());
}

TEST_F(PreferencesKeysTest, AKeyPassesFromWhatHasTheFocus) {
    press(content(), Qt::Key_2, Qt::ControlModifier, "2");
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
}

TEST_F(PreferencesKeysTest, AKeyThatNobodyUsesIsLeftAlone) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    event.setAccepted(true);
    QApplication::sendEvent(&window(), &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_THAT(current()->keys, ElementsAre(QStringLiteral("a")));
}

} // namespace barquell::test
