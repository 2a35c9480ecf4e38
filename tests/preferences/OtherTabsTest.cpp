// General, Touch Bar, Shortcuts and Expert, as the program has them.

#include "AppsFixture.h"

#include "foundation/Values.h"
#include "menubar/AuthWindowController.h"
#include "menubar/LikeTheAppTracker.h"
#include "preferences/tabs/OutputWindow.h"
#include "preferences/tabs/PreferencesTabExpert.h"
#include "preferences/tabs/PreferencesTabGeneral.h"
#include "support/Wait.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QScreen>
#include <QTest>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::NotNull;

namespace {

class OtherTabsTest : public AppsFixture {
protected:
    void openOn(const char *identifier) {
        controller = PreferencesWindowController::create();
        controller->showWindow(nullptr, QString::fromLatin1(identifier));
        here.loop.runPending();
    }

    void openExpert() {
        openOn("General");
        controller->handleKeyDown(key("0", kFlagOption | kFlagCommand));
    }

    PreferencesTabExpert &expert() { return *qobject_cast<PreferencesTabExpert *>(controller->expertTab()); }
    PreferencesTabGeneral &general() {
        return *qobject_cast<PreferencesTabGeneral *>(controller->currentTab());
    }

    template <typename Control>
    Control *control(const char *name) {
        return controller->currentTab()->view()->template findChild<Control *>(QString::fromLatin1(name));
    }

    static void postLikeTheApp() {
        NotificationCenter::defaultCenter().post({likeTheAppButtonNotification(), nullptr, {}});
    }
};

} // namespace

TEST_F(OtherTabsTest, TheLikeTheAppButtonFollowsItsNotificationWhileTheTabIsOpen) {
    openOn("General");
    ASSERT_THAT(general().likeTheAppButton(), NotNull());
    EXPECT_EQ(general().likeTheAppButton()->isHidden(), !LikeTheAppTracker::canDisplayButton());
    EXPECT_TRUE(general().likeTheAppButton()->isHidden());
    LikeTheAppTracker::displayTimerDidFire();
    ASSERT_TRUE(LikeTheAppTracker::canDisplayButton());
    EXPECT_FALSE(general().likeTheAppButton()->isHidden());
    general().likeTheAppButton()->hide();
    postLikeTheApp();
    EXPECT_FALSE(general().likeTheAppButton()->isHidden());
}

TEST_F(OtherTabsTest, TheLikeTheAppButtonIsRightWhenTheTabAppears) {
    LikeTheAppTracker::displayTimerDidFire();
    openOn("General");
    EXPECT_FALSE(general().likeTheAppButton()->isHidden());
}

TEST_F(OtherTabsTest, PressingItAsksInASheetOfTheWindow) {
    openOn("General");
    general().likeTheAppDidPress({});
    EXPECT_FALSE(window().findChildren<QDialog *>().isEmpty());
}

TEST_F(OtherTabsTest, WithoutItsButtonTheGeneralTabDoesNothing) {
    LikeTheAppTracker::displayTimerDidFire();
    PreferencesTabGeneral tab;
    auto button = std::make_unique<QPushButton>();
    tab.setLikeTheAppButton(button.get());
    tab.viewWillAppear();
    EXPECT_FALSE(button->isHidden());
    button.reset();
    tab.updateLikeTheAppButton();
    tab.viewWillAppear();
    EXPECT_EQ(tab.likeTheAppButton(), nullptr);
}

TEST_F(OtherTabsTest, NoneOfThemIsResizable) {
    openExpert();
    EXPECT_FALSE(expert().resizeConfiguration().isResizable());
    for (const auto &each : controller->tabs()) {
        EXPECT_FALSE(each->resizeConfiguration().isResizable());
    }
}

TEST_F(OtherTabsTest, AppsWithoutBlockingAreReachedFromTheTouchBarTab) {
    openOn("TouchBar");
    control<QAbstractButton>("showAppsButton")->click();
    EXPECT_EQ(controller->currentTab(), touchBar()->appsTab());
}

TEST_F(OtherTabsTest, AHigherTabDoesNotGrowOverTheLowerEdgeOfTheScreen) {
    openOn("General");
    const QRect room = window().screen()->availableGeometry();
    window().move(window().x(), room.bottom() - window().frameGeometry().height());
    controller->handleKeyDown(key("2", kFlagCommand));
    EXPECT_EQ(window().frameGeometry().bottom(), room.bottom());
    EXPECT_GE(window().frameGeometry().top(), room.top());
}

TEST_F(OtherTabsTest, AppsWithoutAnOwnerAreNotShown) {
    openOn("TouchBar");
    touchBar()->setOwner(nullptr);
    touchBar()->showApps({});
    EXPECT_EQ(controller->currentTab(), touchBar());
}

TEST_F(OtherTabsTest, ClearingPauseKeysIsHiddenWhereThePlaceCannotDoIt) {
    here.platform.taps.flagsCanChange = false;
    openOn("TouchBar");
    EXPECT_TRUE(touchBar()->clearPauseKeysButton()->isHidden());
}

TEST_F(OtherTabsTest, ClearingPauseKeysIsThereWhereThePlaceCanDoIt) {
    openOn("TouchBar");
    EXPECT_FALSE(touchBar()->clearPauseKeysButton()->isHidden());
}

TEST_F(OtherTabsTest, FivePlacesOfTheDisplayAreChosenOnAPicture) {
    set("ShowHUD", true);
    openOn("TouchBar");
    const std::vector<std::pair<const char *, int>> places{
        {"hudCentre", 0}, {"hudTopRight", 1}, {"hudBottomRight", 2}, {"hudTopLeft", 3}, {"hudBottomLeft", 4}};
    for (const auto &[name, number] : places) {
        control<QRadioButton>(name)->click();
        EXPECT_EQ(stored("HUDLocation"), QVariant(qlonglong(number))) << name;
    }
}

TEST_F(OtherTabsTest, TheArrowKeysReachEveryPlaceOfTheDisplay) {
    set("ShowHUD", true);
    set("HUDLocation", 3);
    openOn("TouchBar");
    control<QRadioButton>("hudTopLeft")->setFocus();
    const auto placeAfter = [this](Qt::Key arrow) {
        QTest::keyClick(window().focusWidget(), arrow);
        return stored("HUDLocation").toInt();
    };
    std::vector<int> places;
    for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right}) {
        places.push_back(placeAfter(arrow));
    }
    EXPECT_THAT(places, ElementsAre(1, 0, 4, 2, 3)); // in the order of reading, and round
    EXPECT_EQ(placeAfter(Qt::Key_Left), 2);
    EXPECT_EQ(placeAfter(Qt::Key_Up), 4);
}

TEST_F(OtherTabsTest, CancellingAResetLeavesEverythingAsItWas) {
    openExpert();
    const QVariantMap before = UserDefaults::standard().persistentDomain();
    expert().resetSettings({});
    ASSERT_THAT(sheet(), NotNull());
    EXPECT_EQ(sheet()->text(), QStringLiteral("Are you sure?"));
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    answer("Cancel");
    EXPECT_EQ(UserDefaults::standard().persistentDomain(), before);
}

TEST_F(OtherTabsTest, AResetRemovesEverythingAndTheRegisteredDefaultsCount) {
    openExpert();
    set("BypassApps", QStringList{"a"});
    set("RemoveWithoutConfirmation", true);
    set("PreferencesWindowTabSize Apps", QStringLiteral("{600, 300}"));
    EXPECT_FALSE(UserDefaults::standard().boolForKey(QStringLiteral("AnimatedWindowSizing")));
    expert().resetSettings({});
    answer("OK");
    EXPECT_THAT(UserDefaults::standard().persistentDomain().keys(), IsEmpty());
    EXPECT_TRUE(UserDefaults::standard().boolForKey(QStringLiteral("AnimatedWindowSizing")));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(controller->currentTab(), &expert());
}

namespace {

/// What was said last of each of these settings.
class Listener final : public ChangeObserver {
public:
    explicit Listener(const QStringList &keys) : _keys(keys) {
        for (const QString &key : _keys) {
            UserDefaults::standard().addObserver(*this, key, {});
        }
    }
    ~Listener() override {
        for (const QString &key : _keys) {
            UserDefaults::standard().removeObserver(*this, key);
        }
    }
    Q_DISABLE_COPY_MOVE(Listener)

    void observeValueForKeyPath(const QString &keyPath, Observable * /*object*/, const QVariant &newValue,
                                const ObservingContext & /*context*/) override {
        heard.insert(keyPath, nilForNullObject(newValue));
    }

    QVariantMap heard;

private:
    QStringList _keys;
};

} // namespace

TEST_F(OtherTabsTest, AfterAResetEveryObserverHearsTheDefaultOrNothingAndTheLoginItemIsOff) {
    const QVariantMap defaults{
        {"Enabled", true}, {"PauseKeyFn", true}, {"HUDLocation", 1}, {"OptionalDockIcon", true}};
    UserDefaults::standard().registerDefaults(defaults);
    openExpert(); // with its window comes what follows the login item
    const QVariantMap changed{
        {"Enabled", false},          {"PauseKeyFn", false},           {"HUDLocation", 4},
        {"OptionalDockIcon", false}, {"PauseKeyShiftType", 2},        {"ShowHUD", true},
        {"LaunchAtStart", true},     {"RevealShortcutEnabled", true}, {"BypassApps", QStringList{"a"}}};
    for (auto each = changed.begin(); each != changed.end(); ++each) {
        UserDefaults::standard().setObject(each.value(), each.key());
    }
    auto &loginItem = here.platform.loginItem.journal;
    ASSERT_EQ(loginItem.back(), "enable com.vexolith.barquell.launcher");
    const Listener listener(changed.keys());
    expert().resetSettings({});
    answer("OK");
    for (const QString &key : changed.keys()) {
        ASSERT_TRUE(listener.heard.contains(key)) << key.toStdString();
        EXPECT_EQ(listener.heard.value(key), defaults.value(key)) << key.toStdString();
    }
    EXPECT_EQ(loginItem.back(), "disable com.vexolith.barquell.launcher");
}

TEST_F(OtherTabsTest, AfterAResetTheControlsShowWhatCounts) {
    openExpert();
    set("RemoveWithoutConfirmation", true);
    EXPECT_TRUE(control<QCheckBox>("removeWithoutConfirmation")->isChecked());
    expert().resetSettings({});
    answer("OK");
    EXPECT_FALSE(control<QCheckBox>("removeWithoutConfirmation")->isChecked());
}

TEST_F(OtherTabsTest, TheExpertTabOpensTheAuthorizationWindow) {
    openExpert();
    control<QAbstractButton>("authorizationButton")->click();
    here.loop.runPending();
    EXPECT_TRUE(AuthWindowController::cls().window()->isVisible());
}

TEST_F(OtherTabsTest, TheExpertTabOpensThePrivacySettings) {
    openExpert();
    control<QAbstractButton>("privacyButton")->click();
    ASSERT_EQ(here.platform.workspace.openedUrls.size(), 1U);
}

TEST_F(OtherTabsTest, PrivacySettingsAreNotOfferedWhereTheSystemHasNone) {
    here.platform.trust.privacyPage = false;
    openExpert();
    EXPECT_TRUE(expert().privacyButton()->isHidden());
}

TEST_F(OtherTabsTest, TheMenuOpensBeneathItsButton) {
    openExpert();
    auto *button = control<QAbstractButton>("revealButton");
    button->click();
    ASSERT_TRUE(expert().menu()->isVisible());
    EXPECT_EQ(expert().menu()->pos(), button->mapToGlobal(QPoint(0, button->height())));
}

TEST_F(OtherTabsTest, WithoutASenderTheMenuOpensAtTheOrigin) {
    openExpert();
    expert().revealMenu({});
    EXPECT_EQ(QApplication::activePopupWidget(), expert().menu());
    // A style may keep menus off the very edge of the screen.
    EXPECT_LT((expert().menu()->pos() - QPoint(0, 0)).manhattanLength(), 10);
}

TEST_F(OtherTabsTest, WithoutItsMenuNothingIsRevealed) {
    PreferencesTabExpert tab;
    tab.revealMenu({});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(OtherTabsTest, TheMenuOffersWhatThePlaceHas) {
    openExpert();
    const auto isOffered = [this](int item) {
        Q_EMIT expert().menu()->aboutToShow();
        return expert().menu()->actions().at(item)->isEnabled();
    };
    EXPECT_FALSE(isOffered(0));
    EXPECT_FALSE(isOffered(1));
    EXPECT_TRUE(isOffered(2));
    here.platform.diagnostics.file = QStringLiteral("/somewhere/settings.json");
    here.platform.diagnostics.command = QStringList({"echo"});
    EXPECT_TRUE(isOffered(0));
    EXPECT_TRUE(isOffered(1));
}

TEST_F(OtherTabsTest, TheSettingsFileIsRevealedInItsFolder) {
    here.platform.diagnostics.file = QStringLiteral("/somewhere/settings.json");
    openExpert();
    expert().menu()->actions().at(0)->trigger();
    ASSERT_EQ(here.platform.workspace.openedUrls.size(), 1U);
    EXPECT_EQ(here.platform.workspace.openedUrls.front(), QUrl(QStringLiteral("file:///somewhere")));
}

namespace {

OutputWindow *outputWindow() {
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<OutputWindow *>(each)) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

TEST_F(OtherTabsTest, TheLogIsShownInAWindow) {
    here.platform.diagnostics.command = QStringList({"printf", "first\\nsecond\\n"});
    openExpert();
    expert().menu()->actions().at(1)->trigger();
    here.loop.runPending();
    ASSERT_THAT(outputWindow(), NotNull());
    EXPECT_TRUE(outputWindow()->isVisible());
    EXPECT_TRUE(waitFor([] { return outputWindow()->toPlainText() == QStringLiteral("first\nsecond\n"); }));
    outputWindow()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(outputWindow(), nullptr);
}

TEST_F(OtherTabsTest, AProgramThatIsNotThereIsSaidInTheWindow) {
    here.platform.diagnostics.command = QStringList({"/nowhere/logs"});
    openExpert();
    log.lines.clear();
    expert().menu()->actions().at(1)->trigger();
    EXPECT_TRUE(waitFor([this] { return !log.lines.isEmpty(); }));
    EXPECT_FALSE(outputWindow()->toPlainText().isEmpty());
    outputWindow()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace barquell::test
