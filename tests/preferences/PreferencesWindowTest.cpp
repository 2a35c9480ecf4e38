#include "PreferencesWindowFixture.h"

#include <QAccessible>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class PreferencesWindowTest : public PreferencesWindowFixture {
protected:
    QRect frameOnScreen() { return window().frameGeometry(); }
};

QStringList sorted(QStringList list) {
    list.sort();
    return list;
}

} // namespace

TEST_F(PreferencesWindowTest, AChainOfElevenTabsGivesTheKeysOneToNineOnly) {
    open();
    EXPECT_EQ(controller->tabs().size(), 11);
    EXPECT_EQ(sorted(controller->keyEquivalentTargets().keys()),
              QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(controller->keyEquivalentTargets().value(QStringLiteral("1")), QStringLiteral("One"));
    EXPECT_EQ(controller->keyEquivalentTargets().value(QStringLiteral("9")), QStringLiteral("Nine"));
}

TEST_F(PreferencesWindowTest, EveryTabOfTheChainAndTheExpertTabKnowTheirOwner) {
    open();
    for (const auto &each : controller->tabs()) {
        EXPECT_EQ(each->owner(), controller.get());
    }
    ASSERT_NE(controller->expertTab(), nullptr);
    EXPECT_EQ(controller->expertTab()->owner(), controller.get());
    EXPECT_FALSE(controller->tabs().contains(QStringLiteral("Expert")));
}

TEST_F(PreferencesWindowTest, AMissingInterfaceFileMakesNoController) {
    EXPECT_EQ(PreferencesWindowController::create(QStringLiteral("Nowhere")), nullptr);
    EXPECT_EQ(log.lines, QStringList{QStringLiteral("Failed to load nib named Nowhere")});
}

TEST_F(PreferencesWindowTest, TheFirstTabIsShownWhereNothingIsRememberedAndThereIsNoDefaultTab) {
    open();
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    EXPECT_FALSE(stored("PreferencesWindowTabIdentifier").isValid()); // the first choice is not remembered
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(PreferencesWindowTest, TheRememberedTabIsShown) {
    set("PreferencesWindowTabIdentifier", QStringLiteral("Three"));
    open();
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Three"));
}

TEST_F(PreferencesWindowTest, ARememberedTabThatDoesNotExistIsSaidAndTheFirstOneIsShown) {
    set("PreferencesWindowTabIdentifier", QStringLiteral("Gone"));
    open();
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Tab with identifier 'Gone' is not found")));
}

TEST_F(PreferencesWindowTest, AnEmptyRememberedIdentifierIsOneThatDoesNotExist) {
    set("PreferencesWindowTabIdentifier", QString(QLatin1String("")));
    open();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Tab with identifier '' is not found")));
}

TEST_F(PreferencesWindowTest, ARememberedTabOfAnotherTypeReadsAsNone) {
    for (const QVariant &value : {QVariant(QVariantList{1}), QVariant(QVariantMap()),
                                  QVariant(QByteArray("One")), QVariant(QDateTime::currentDateTimeUtc())}) {
        set("PreferencesWindowTabIdentifier", value);
        open();
        EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    }
    EXPECT_THAT(log.lines, IsEmpty());
    set("PreferencesWindowTabIdentifier", 7);
    open();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Tab with identifier '7' is not found")));
}

TEST_F(PreferencesWindowTest, ChoosingATabRemembersIt) {
    open();
    EXPECT_TRUE(controller->setCurrentTabIdentifier(QStringLiteral("Two")));
    EXPECT_EQ(stored("PreferencesWindowTabIdentifier"), QStringLiteral("Two"));
}

TEST_F(PreferencesWindowTest, ChoosingTheCurrentTabAnUnknownOneOrNoneChangesNothing) {
    open();
    EXPECT_FALSE(controller->setCurrentTab(controller->currentTab()));
    EXPECT_FALSE(controller->setCurrentTab(nullptr));
    EXPECT_FALSE(controller->setCurrentTabIdentifier(QStringLiteral("Gone")));
    EXPECT_FALSE(controller->setCurrentTabIdentifier({}));
    EXPECT_EQ(currentIdentifier(), QStringLiteral("One"));
    EXPECT_FALSE(stored("PreferencesWindowTabIdentifier").isValid());
}

TEST_F(PreferencesWindowTest, AHiddenWindowIsNotLaidOutUntilItIsShown) {
    open();
    TestTab::journal().clear();
    controller->presentCurrentTabActivateWindow(false);
    EXPECT_THAT(TestTab::journal(), IsEmpty());
    EXPECT_EQ(window().contentView()->contentView(), nullptr);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(PreferencesWindowTest, APresentationKeepsItsOrder) {
    TestTab::journal().clear();
    show();
    EXPECT_THAT(TestTab::journal(), ElementsAre("One did load", "One will appear"));
    TestTab &one = *current();
    EXPECT_EQ(one.selectedWhenAppearing, QStringLiteral("One")); // the toolbar comes first
    EXPECT_TRUE(one.wasContent);                                 // then the view
    EXPECT_TRUE(one.wasFirstResponder);                          // then the focus, then the tab is told
    EXPECT_NE(one.windowSizeWhenAppearing, window().size());     // then the window gets its size
    EXPECT_EQ(here.platform.lifecycle.journal.back(), "activate");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().contentView()->size(), QSize(400, 150));
    EXPECT_EQ(window().size(), QSize(400, 150 + toolbarHeight()));
}

TEST_F(PreferencesWindowTest, TheWindowIsActivatedOnlyWhereThatIsAsked) {
    show();
    here.platform.lifecycle.journal.clear();
    select("Two");
    settle();
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
    controller->showWindow(nullptr);
    settle();
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("activate"));
}

TEST_F(PreferencesWindowTest, TheSameTabAgainIsNotToldThatItAppears) {
    show();
    TestTab::journal().clear();
    controller->showWindow(nullptr);
    EXPECT_THAT(TestTab::journal(), IsEmpty());
}

TEST_F(PreferencesWindowTest, ASwitchKeepsTheTopEdgeAndTheMiddle) {
    set("AnimatedWindowSizing", false);
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(301, 250));
    show();
    const QRect before = frameOnScreen();
    select("Two");
    const QRect after = frameOnScreen();
    EXPECT_EQ(after.top(), before.top());
    EXPECT_EQ(after.left(), before.left() + 49); // half of 99, rounded down
    EXPECT_EQ(window().contentView()->size(), QSize(301, 250));
    select("One");
    EXPECT_EQ(frameOnScreen().top(), before.top());
    EXPECT_EQ(frameOnScreen().left(), before.left() + 49 - 50);
}

TEST_F(PreferencesWindowTest, AWindowThatWasHiddenNeverAnimates) {
    TestTab::sizes().insert(QStringLiteral("One"), QSize(333, 222));
    show();
    EXPECT_EQ(window().contentView()->size(), QSize(333, 222)); // no time has passed
}

TEST_F(PreferencesWindowTest, AVisibleWindowAnimatesWhereThatIsWanted) {
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(400, 350));
    show();
    const int before = window().height();
    select("Two");
    EXPECT_EQ(window().height(), before);
    here.loop.advanceBy(std::chrono::milliseconds(100));
    EXPECT_GT(window().height(), before);
    EXPECT_LT(window().height(), 350 + toolbarHeight());
    settle();
    EXPECT_EQ(window().height(), 350 + toolbarHeight());
}

TEST_F(PreferencesWindowTest, AVisibleWindowDoesNotAnimateWhereThatIsNotWanted) {
    set("AnimatedWindowSizing", false);
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(400, 350));
    show();
    select("Two");
    EXPECT_EQ(window().height(), 350 + toolbarHeight());
}

TEST_F(PreferencesWindowTest, WhatFollowsAnAnimationWaitsForItsLastFrame) {
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(400, 350));
    show();
    here.platform.lifecycle.journal.clear();
    controller->showWindow(nullptr, QStringLiteral("Two"));
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
    settle();
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("activate"));
}

TEST_F(PreferencesWindowTest, ANewerPresentationEndsTheAnimationBeforeAndWhatWouldHaveFollowed) {
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(400, 350));
    show();
    here.platform.lifecycle.journal.clear();
    controller->showWindow(nullptr, QStringLiteral("Two"));
    here.loop.advanceBy(std::chrono::milliseconds(50));
    select("One");
    settle();
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
    EXPECT_EQ(window().contentView()->size(), QSize(400, 150));
}

TEST_F(PreferencesWindowTest, AWindowThatClosesInMidAnimationEndsQuietly) {
    TestTab::sizes().insert(QStringLiteral("Two"), QSize(400, 350));
    show();
    controller->showWindow(nullptr, QStringLiteral("Two"));
    window().close();
    settle();
    EXPECT_FALSE(window().isVisible());
    controller.reset();
    settle();
}

TEST_F(PreferencesWindowTest, ATabThatChangedItsViewIsLaidOutAgainWhereItIsCurrent) {
    set("AnimatedWindowSizing", false);
    show();
    tab("Two")->view();
    content().resize(380, 180);
    controller->preferencesTabDidChangeView(tab("Two"));
    EXPECT_EQ(window().width(), 400);
    controller->preferencesTabDidChangeView(current());
    EXPECT_EQ(window().size(), QSize(380, 180 + toolbarHeight()));
}

TEST_F(PreferencesWindowTest, ATabOutsideTheChainAppearsWhenItWants) {
    show();
    TestTab aside;
    aside.setIdentifier(QStringLiteral("Aside"));
    controller->preferencesTabWantsToAppear(&aside);
    EXPECT_EQ(controller->currentTab(), &aside);
    EXPECT_EQ(aside.owner(), controller.get());
    EXPECT_EQ(&content(), aside.view());
    EXPECT_EQ(stored("PreferencesWindowTabIdentifier"), QStringLiteral("Aside"));
    TestTab::journal().clear();
    controller->preferencesTabWantsToAppear(&aside); // current already
    EXPECT_THAT(TestTab::journal(), IsEmpty());
    controller.reset();
}

TEST_F(PreferencesWindowTest, AToolbarItemSelectsItsTabAndIsHighlightedAlone) {
    show();
    const QList<QAction *> items = window().findChild<QToolBar *>()->actions();
    items.at(1)->trigger();
    EXPECT_EQ(currentIdentifier(), QStringLiteral("Two"));
    EXPECT_TRUE(items.at(1)->isChecked());
    EXPECT_FALSE(items.at(0)->isChecked());
    items.at(1)->trigger(); // its tab is current
    EXPECT_TRUE(items.at(1)->isChecked());
    select("Three"); // has no item
    EXPECT_FALSE(items.at(0)->isChecked());
    EXPECT_FALSE(items.at(1)->isChecked());
}

TEST_F(PreferencesWindowTest, TheToolbarIsReachedByTheKeyboard) {
    open();
    auto *toolbar = window().findChild<QToolBar *>();
    for (QAction *item : toolbar->actions()) {
        EXPECT_EQ(toolbar->widgetForAction(item)->focusPolicy(), Qt::TabFocus);
        EXPECT_FALSE(item->text().isEmpty());
    }
}

TEST_F(PreferencesWindowTest, TheWindowIsGivenForATabOnlyWhileItIsVisibleOnIt) {
    open();
    EXPECT_EQ(controller->windowIfTabPresented(QStringLiteral("One")), nullptr);
    controller->showWindow(nullptr);
    here.loop.runPending();
    EXPECT_EQ(controller->windowIfTabPresented(QStringLiteral("One")), &window());
    EXPECT_EQ(controller->windowIfTabPresented(QStringLiteral("Two")), nullptr);
    EXPECT_EQ(controller->windowIfTabPresented(QStringLiteral("Gone")), nullptr);
    controller->handleKeyDown(key("0", kFlagOption | kFlagCommand));
    EXPECT_EQ(controller->windowIfTabPresented(QStringLiteral("Expert")), nullptr); // not in the chain
}

TEST_F(PreferencesWindowTest, AScreenReaderIsToldOfTheTabsAsChoices) {
    show();
    const auto *toolbar = window().findChild<QToolBar *>();
    QStringList chosen;
    for (QAction *item : toolbar->actions()) {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(toolbar->widgetForAction(item));
        ASSERT_TRUE(told);
        EXPECT_EQ(told->role(), QAccessible::RadioButton);
        EXPECT_EQ(told->text(QAccessible::Name), item->text());
        EXPECT_TRUE(told->state().checkable && told->state().focusable);
        if (told->state().checked) {
            chosen += told->text(QAccessible::Name);
        }
    }
    EXPECT_EQ(chosen, QStringList{window().selectedItemIdentifier()});
}

TEST_F(PreferencesWindowTest, AScreenReaderChoosesATab) {
    show();
    const auto *toolbar = window().findChild<QToolBar *>();
    QWidget *second = toolbar->widgetForAction(toolbar->actions().at(1));
    QAccessibleActionInterface *actions = QAccessible::queryAccessibleInterface(second)->actionInterface();
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(currentIdentifier(), toolbar->actions().at(1)->property("itemIdentifier").toString());
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(second)->state().checked);
}

} // namespace barquell::test
