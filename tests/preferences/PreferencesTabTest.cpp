#include "TestTab.h"

#include "foundation/NotificationCenter.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace barquell::test {

namespace {

class PreferencesTabSample final : public PreferencesTab {
    Q_OBJECT
};

class PreferencesTabTest : public testing::Test {
protected:
    PreferencesTabTest() { place(); }

    LogCapture log;
};

KeyEvent keyDown(std::uint16_t keyCode, ModifierFlags flags) {
    return {KeyEvent::Type::KeyDown, keyCode, flags, {}, false};
}

} // namespace

TEST_F(PreferencesTabTest, TheIdentifierIsTheClassNameWithoutItsPrefix) {
    EXPECT_EQ(PreferencesTabSample().identifier(), QStringLiteral("Sample"));
    EXPECT_EQ(PreferencesTabSample().selectedIdentifier(), QStringLiteral("Sample"));
}

TEST_F(PreferencesTabTest, AnIdentifierThatWasSetTakesPrecedence) {
    PreferencesTabSample tab;
    tab.setIdentifier(QStringLiteral("Other"));
    EXPECT_EQ(tab.identifier(), QStringLiteral("Other"));
}

TEST_F(PreferencesTabTest, WithoutAnIdentifierThereIsAnError) {
    EXPECT_THROW(PreferencesTab().identifier(), std::logic_error);
}

TEST_F(PreferencesTabTest, AMissingInterfaceFileGivesAnEmptyViewOnce) {
    TestTab::journal().clear();
    TestTab tab;
    tab.setIdentifier(QStringLiteral("Nowhere"));
    QWidget *view = tab.view();
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(view->children().isEmpty());
    EXPECT_EQ(tab.view(), view);
    EXPECT_THAT(TestTab::journal(), testing::ElementsAre("Nowhere did load"));
    EXPECT_EQ(log.lines.size(), 1);
    EXPECT_TRUE(log.lines.constFirst().startsWith(QStringLiteral("Failed to load nib named ")));
}

TEST_F(PreferencesTabTest, AKeyMatchesWithExactlyItsModifiers) {
    EXPECT_TRUE(PreferencesTab::matchKeyDown(keyDown(53, 0), 0, 53));
    EXPECT_FALSE(PreferencesTab::matchKeyDown(keyDown(52, 0), 0, 53));
    EXPECT_FALSE(PreferencesTab::matchKeyDown(keyDown(53, kFlagShift), 0, 53));
    EXPECT_TRUE(PreferencesTab::matchKeyDown(keyDown(53, kFlagShift | kFlagFn | kFlagLeftShift | 0x10000),
                                             kFlagShift, 53)); // Caps Lock, Fn and the side do not count
    EXPECT_FALSE(PreferencesTab::matchKeyDown(keyDown(53, kFlagShift), kFlagShift | kFlagCommand, 53));
}

TEST_F(PreferencesTabTest, ABaseTabIsFixedAndUsesNoKeys) {
    PreferencesTabSample tab;
    EXPECT_FALSE(tab.resizeConfiguration().isResizable());
    EXPECT_FALSE(tab.handleWindowKeyDown(keyDown(53, 0)));
    EXPECT_EQ(tab.owner(), nullptr);
    EXPECT_EQ(tab.nextTab(), nullptr);
}

TEST_F(PreferencesTabTest, ItsEndEndsWhatItListensTo) {
    int heard = 0;
    auto tab = std::make_unique<PreferencesTabSample>();
    NotificationCenter::defaultCenter().addObserver(*tab, QStringLiteral("a"),
                                                    [&heard](const Notification &) { ++heard; });
    NotificationCenter::defaultCenter().post({QStringLiteral("a"), nullptr, {}});
    tab.reset();
    NotificationCenter::defaultCenter().post({QStringLiteral("a"), nullptr, {}});
    EXPECT_EQ(heard, 1);
}

} // namespace barquell::test

#include "PreferencesTabTest.moc"
