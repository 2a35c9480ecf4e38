#include "StatusItemFixture.h"

#include "foundation/interface/Image.h"
#include "menubar/StatusItemController.h"
#include "menubar/hud/TouchBarHUDController.h"

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

RunningApplication application(const char *path) {
    return {.bundleIdentifier = QStringLiteral("org.example.app"), .bundlePath = QString::fromLatin1(path)};
}

/// A controller with a menu as an interface file would give it.
class StatusItemControllerTest : public StatusItemFixture {
protected:
    StatusItemControllerTest() {
        applications.names = {{QStringLiteral("/editor"), QStringLiteral("Editor")},
                              {QStringLiteral("/pens"), QStringLiteral("Pens & %@")}};
        bypassItem->setText(QStringLiteral("Bypass %@"));
        bypassItem->setCheckable(true);
    }

    void create() {
        controller = std::make_unique<StatusItemController>();
        controller->setStatusItemMenu(menu.get());
        controller->setBypassAppMenuItem(bypassItem);
        controller->awakeFromNib();
    }

    /// The icon as it is shown: image of the program, tool tip, opacity.
    void expectIcon(const char *image, const char *toolTip, double opacity) {
        const auto drawn = [](const QIcon &icon) { return icon.pixmap(32, 32).toImage(); };
        EXPECT_EQ(drawn(item().image()), drawn(imageNamed(QString::fromLatin1(image))));
        EXPECT_FALSE(item().image().isNull());
        EXPECT_EQ(item().toolTip(), QLatin1String(toolTip));
        EXPECT_EQ(item().opacity(), opacity);
    }

    void hold(ModifierFlags flags) {
        here.platform.modifiers.flags = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        EXPECT_TRUE(here.platform.taps.deliver(event));
    }

    std::unique_ptr<QMenu> menu = std::make_unique<QMenu>();
    QAction *bypassItem = menu->addAction(QString());
    std::unique_ptr<StatusItemController> controller;
};

/// Drops the controller as soon as the setting is written.
class Dropper final : public ChangeObserver {
public:
    explicit Dropper(std::unique_ptr<StatusItemController> &controller) : _controller(controller) {
        UserDefaults::standard().addObserver(*this, QStringLiteral("ShowStatusItem"), {});
    }
    ~Dropper() override { UserDefaults::standard().removeObserver(*this, QStringLiteral("ShowStatusItem")); }
    Q_DISABLE_COPY_MOVE(Dropper)
    void observeValueForKeyPath(const QString & /*keyPath*/, Observable * /*object*/,
                                const QVariant & /*newValue*/,
                                const ObservingContext & /*context*/) override {
        _controller.reset();
    }

private:
    std::unique_ptr<StatusItemController> &_controller;
};

} // namespace

TEST_F(StatusItemControllerTest, TheItemIsMadeInOrderAndDrawnLast) {
    create();
    EXPECT_THAT(bar.journal,
                ElementsAre("create item", "autosave name MainItem", "removal allowed yes", "visible yes",
                            "watch visibility", "click handler", "image", "tool tip", "opacity 1", "menu"));
}

TEST_F(StatusItemControllerTest, TheIconShowsTrustAndBlocking) {
    create();
    expectIcon("StatusItemDefault", "", 1.0);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    expectIcon("StatusItemDefault", "", 0.5);
    setTrusted(false);
    expectIcon("StatusItemWarn", "Authorization Required", 0.5);
    setTrusted(true);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false);
    expectIcon("StatusItemDefault", "", 1.0);
}

TEST_F(StatusItemControllerTest, AnUntrustedProcessWhoseBlockingStillCountsAsInForceIsWarnedOfAtFullOpacity) {
    create();
    controller->processTrustedStateDidChange(false); // trust went before the interceptor has heard of it
    expectIcon("StatusItemWarn", "Authorization Required", 1.0);
}

TEST_F(StatusItemControllerTest, AStateNotificationOfAnySourceRedrawsTheIcon) {
    create();
    for (const int source : {StateChangeSourceTap, StateChangeSourcePauseKeys, StateChangeSourcePauseFlags}) {
        bar.journal.clear();
        NotificationCenter::defaultCenter().post(
            {.name = QStringLiteral("com.vexolith.barquell.touch-bar-state-changed"),
             .userInfo = {{QStringLiteral("source"), source}}});
        EXPECT_THAT(bar.journal, ElementsAre("image", "tool tip", "opacity 1"));
    }
}

TEST_F(StatusItemControllerTest, PauseKeysWhoseSettingShowsNoHUDDimTheIconAllTheSame) {
    for (const char *key : {"PauseKeyAllowed", "PauseKeyFn"}) {
        UserDefaults::standard().setObject(true, QString::fromLatin1(key));
    }
    UserDefaults::standard().setObject(false, QStringLiteral("ShowHUDPauseKeys"));
    create();
    TouchBarHUDController hud;
    hud.awakeFromNib();
    here.loop.advanceBy(std::chrono::seconds(10)); // its first showing has passed
    here.platform.overlayPanels.journal.clear();
    ASSERT_EQ(item().opacity(), 1.0);
    hold(kFlagFn);
    EXPECT_EQ(item().opacity(), 0.5);
    EXPECT_THAT(here.platform.overlayPanels.journal, IsEmpty());
    hold(0);
    EXPECT_EQ(item().opacity(), 1.0);
    EXPECT_THAT(here.platform.overlayPanels.journal, IsEmpty());
    UserDefaults::standard().setObject(true, QStringLiteral("ShowHUDPauseKeys"));
    hold(kFlagFn);
    EXPECT_THAT(here.platform.overlayPanels.journal, testing::Not(IsEmpty()));
    hold(0);
}

TEST_F(StatusItemControllerTest, TurningBlockingOffDimsTheIconAndOnBrightensIt) {
    create();
    UserDefaults::standard().setObject(false, QStringLiteral("Enabled"));
    EXPECT_EQ(item().opacity(), 0.5);
    UserDefaults::standard().setObject(true, QStringLiteral("Enabled"));
    EXPECT_EQ(item().opacity(), 1.0);
}

TEST_F(StatusItemControllerTest, TheUsersRemovalIsStoredAndTheProgramGoesOn) {
    create();
    item().removeByUser();
    EXPECT_FALSE(showsStatusItem());
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
}

TEST_F(StatusItemControllerTest, WhoFollowsTheSettingMayDropTheControllerAtOnce) {
    create();
    const Dropper dropper(controller);
    item().removeByUser();
    EXPECT_EQ(controller, nullptr);
    EXPECT_EQ(bar.item(), nullptr);
    EXPECT_FALSE(showsStatusItem());
}

TEST_F(StatusItemControllerTest, AnItemThatBecomesVisibleStoresNothing) {
    create();
    item().setVisible(true);
    EXPECT_THAT(UserDefaults::standard().persistentDomain(), IsEmpty());
}

TEST_F(StatusItemControllerTest, TheBypassItemIsHiddenAndEmptyWithoutAnApplicationInFront) {
    create();
    controller->setFrontmostApp(application("/editor"));
    controller->setFrontmostApp(std::nullopt);
    EXPECT_FALSE(bypassItem->isVisible());
    EXPECT_EQ(bypassItem->text(), QString());
}

TEST_F(StatusItemControllerTest, TheBypassItemsTitleIsAlwaysMadeFromTheTemplate) {
    create();
    for (int round = 0; round < 2; ++round) {
        controller->setFrontmostApp(application("/editor"));
        EXPECT_EQ(read(*bypassItem), QStringLiteral("Bypass Editor"));
        EXPECT_TRUE(bypassItem->isVisible());
        controller->setFrontmostApp(application("/pens"));
        EXPECT_EQ(read(*bypassItem), QStringLiteral("Bypass Pens & %@"));
        controller->setFrontmostApp(std::nullopt);
    }
}

TEST_F(StatusItemControllerTest, AnApplicationWithoutADisplayNameIsNamedByItsIdentifier) {
    create();
    controller->setFrontmostApp(application("/unknown"));
    EXPECT_EQ(read(*bypassItem), QStringLiteral("Bypass org.example.app"));
}

TEST_F(StatusItemControllerTest, OurOwnCopyIsNamedAlsoWhereItIsNotInstalled) {
    create();
    controller->setFrontmostApp(
        RunningApplication{.bundleIdentifier = QStringLiteral("com.vexolith.barquell"),
                           .bundlePath = QStringLiteral("/unknown")});
    EXPECT_EQ(read(*bypassItem), QStringLiteral("Bypass Barquell"));
}

TEST_F(StatusItemControllerTest, AnAmpersandIsReadInTheTemplateAsInTheName) {
    bypassItem->setText(QStringLiteral("Bypass & go: %@"));
    create();
    controller->setFrontmostApp(application("/pens"));
    EXPECT_EQ(bypassItem->text(), QStringLiteral("Bypass && go: Pens && %@"));
}

TEST_F(StatusItemControllerTest, ATitleWithoutAPlaceholderStaysAsItIs) {
    bypassItem->setText(QStringLiteral("Bypass"));
    create();
    controller->setFrontmostApp(application("/editor"));
    EXPECT_EQ(read(*bypassItem), QStringLiteral("Bypass"));
}

TEST_F(StatusItemControllerTest, InATitleWithTwoPlaceholdersTheFirstIsReplaced) {
    bypassItem->setText(QStringLiteral("%@ and %@ and %1"));
    create();
    controller->setFrontmostApp(application("/editor"));
    EXPECT_EQ(read(*bypassItem), QStringLiteral("Editor and %@ and %1"));
}

TEST_F(StatusItemControllerTest, TheBypassItemIsCheckedWhileTheApplicationIsBypassed) {
    create();
    controller->setFrontmostAppBypassed(true);
    EXPECT_TRUE(bypassItem->isChecked());
    controller->setFrontmostAppBypassed(false);
    EXPECT_FALSE(bypassItem->isChecked());
}

TEST_F(StatusItemControllerTest, ABypassItemThatWasChosenInVainIsShownAsItIs) {
    create();
    bypassItem->trigger(); // Qt checks it
    controller->popupMenu();
    EXPECT_FALSE(bypassItem->isChecked());
}

TEST_F(StatusItemControllerTest, ALeftClickOpensTheMenuAfterAskingForTrust) {
    create();
    here.platform.trust.trusted = false;
    item().click({});
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
    EXPECT_TRUE(menu->isVisible());
    EXPECT_THAT(delegate.reopened, IsEmpty());
}

TEST_F(StatusItemControllerTest, ARightClickReopensTheApplicationAndOpensNoMenu) {
    create();
    item().click({.right = true});
    EXPECT_FALSE(menu->isVisible());
    EXPECT_THAT(delegate.reopened, ElementsAre(false));
}

TEST_F(StatusItemControllerTest, AControlLeftClickIsExactlyARightClick) {
    create();
    item().click({.modifierFlags = kFlagControl});
    EXPECT_FALSE(menu->isVisible());
    EXPECT_THAT(delegate.reopened, ElementsAre(false));
}

TEST_F(StatusItemControllerTest, AControlRightClickIsExactlyALeftClick) {
    create();
    item().click({.modifierFlags = kFlagControl, .right = true});
    EXPECT_TRUE(menu->isVisible());
    EXPECT_THAT(delegate.reopened, IsEmpty());
}

TEST_F(StatusItemControllerTest, ARightClickWithoutADelegateIsHarmless) {
    create();
    here.platform.lifecycle.setDelegate(nullptr);
    item().click({.right = true});
    EXPECT_FALSE(menu->isVisible());
}

TEST_F(StatusItemControllerTest, ShortcutsRestWhileTheMenuIsOpen) {
    create();
    controller->popupMenu();
    ASSERT_TRUE(menu->isVisible());
    EXPECT_FALSE(ShortcutMonitor::cls().enabled());
    menu->hide();
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
}

TEST_F(StatusItemControllerTest, ShortcutsAreBackWhenTheOpenMenuIsTornDown) {
    create();
    controller->popupMenu();
    ASSERT_FALSE(ShortcutMonitor::cls().enabled());
    menu.reset();
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
    controller->popupMenu();
}

TEST_F(StatusItemControllerTest, ShortcutsAreBackWhenTheControllerGoesWithItsMenuOpen) {
    create();
    controller->popupMenu();
    ASSERT_FALSE(ShortcutMonitor::cls().enabled());
    controller.reset();
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
    EXPECT_FALSE(menu->isVisible());
}

TEST_F(StatusItemControllerTest, ShortcutsAreBackWhenTheOpenMenuIsExchanged) {
    create();
    controller->popupMenu();
    controller->setStatusItemMenu(nullptr);
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
    menu->popup(QPoint());
    EXPECT_TRUE(ShortcutMonitor::cls().enabled()); // no menu of ours any more
}

TEST_F(StatusItemControllerTest, AControllerThatGoesTakesItsItemAndItsObservationsAlong) {
    create();
    controller.reset();
    EXPECT_EQ(bar.journal.back(), "remove item");
    bar.journal.clear();
    setTrusted(false);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    EXPECT_THAT(bar.journal, IsEmpty());
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false);
}

TEST_F(StatusItemControllerTest, WithoutAStatusBarTheControllerDoesNothing) {
    bar.refuseItems = true;
    create();
    controller->popupMenu();
    setTrusted(false);
    setTrusted(true);
    controller->setFrontmostApp(application("/editor"));
    EXPECT_EQ(controller->statusItem(), nullptr);
    EXPECT_THAT(bar.journal, ElementsAre("create item"));
}

TEST_F(StatusItemControllerTest, ThePropertiesAreKept) {
    create();
    QObject next;
    QAction toggle;
    EXPECT_TRUE(controller->setProperty("nextObject", QVariant::fromValue(&next)));
    EXPECT_TRUE(controller->setProperty("toggleAppMenuItem", QVariant::fromValue(&toggle)));
    EXPECT_EQ(controller->nextObject(), &next);
    EXPECT_EQ(controller->toggleAppMenuItem(), &toggle);
    EXPECT_EQ(controller->statusItemMenu(), menu.get());
    EXPECT_EQ(controller->bypassAppMenuItem(), bypassItem);
    EXPECT_EQ(controller->statusItem(), bar.item());
    EXPECT_EQ(controller->statusItemView().eventDelegate(), controller.get());
}

} // namespace barquell::test
