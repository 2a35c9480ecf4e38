// The settings at the program entry.

#include "app/AppFixture.h"
#include "foundation/Values.h"
#include "foundation/interface/InterfaceClasses.h"
#include "shortcuts/ShortcutMonitor.h"
#include "support/ChangeRecorder.h"

namespace barquell::test {
namespace {

using testing::IsEmpty;

class EntryTest : public AppFixture {
protected:
    static QVariant effective(const char *key) {
        return UserDefaults::standard().objectForKey(QString::fromLatin1(key));
    }
};

TEST_F(EntryTest, EveryDefaultOfTheTableIsRegisteredAndNothingIsStored) {
    prepareSettings();
    for (const char *key : {"Enabled", "PauseKeyAllowed", "PauseKeyFn", "ShowStatusItem", "ShowHUDPauseKeys",
                            "ShowHUDFrontApp", "ClearPauseKeys", "AnimatedWindowSizing"}) {
        EXPECT_TRUE(sameValue(effective(key), true)) << key;
    }
    EXPECT_EQ(effective("HUDLocation").toInt(), 1);
    for (const char *key : {"ShowHUD", "SilentStart", "Active", "LaunchAtStart"}) {
        EXPECT_FALSE(effective(key).isValid()) << key;
    }
    EXPECT_THAT(UserDefaults::standard().persistentDomain().keys(), IsEmpty());
}

TEST_F(EntryTest, TheRevealShortcutHasADefaultThatIsSwitchedOff) {
    prepareSettings();
    const QVariantList expected{32, 0x1C0000};
    EXPECT_EQ(effective("RevealShortcut").toList(), expected);
    EXPECT_FALSE(effective("RevealShortcutEnabled").toBool());
    EXPECT_FALSE(effective("ToggleShortcut").isValid());
    EXPECT_FALSE(effective("BypassShortcut").isValid());
}

TEST_F(EntryTest, AStoredActiveIsFoldedIntoEnabled) {
    set("Active", false);
    set("Enabled", true);
    prepareSettings();
    EXPECT_FALSE(stored("Active").isValid());
    EXPECT_TRUE(sameValue(stored("Enabled"), false));
}

TEST_F(EntryTest, ATrueActiveSwitchesEnabledOn) {
    set("Active", true);
    set("Enabled", false);
    prepareSettings();
    EXPECT_TRUE(sameValue(stored("Enabled"), true));
}

TEST_F(EntryTest, ActiveIsRemovedBeforeEnabledIsStored) {
    set("Active", QStringLiteral("YES"));
    ChangeRecorder changes;
    UserDefaults::standard().addObserver(changes, QStringLiteral("Active"), {});
    UserDefaults::standard().addObserver(changes, QStringLiteral("Enabled"), {});
    prepareSettings();
    ASSERT_EQ(changes.changes.size(), 2);
    EXPECT_EQ(changes.changes.at(0).first, QStringLiteral("Active"));
    EXPECT_EQ(changes.changes.at(1).first, QStringLiteral("Enabled"));
    EXPECT_TRUE(sameValue(stored("Enabled"), true));
}

TEST_F(EntryTest, WithoutAStoredActiveNothingIsWritten) {
    set("Enabled", false);
    prepareSettings();
    EXPECT_TRUE(sameValue(stored("Enabled"), false));
    EXPECT_EQ(UserDefaults::standard().persistentDomain().size(), 1);
}

TEST_F(EntryTest, AHostileActiveCountsAsFalse) {
    set("Active", QVariantList{true});
    prepareSettings();
    EXPECT_FALSE(stored("Active").isValid());
    EXPECT_TRUE(sameValue(stored("Enabled"), false));
}

TEST_F(EntryTest, AToggleCountsAtTheNextStart) {
    launchSilently();
    post("com.vexolith.barquell.toggle"); // Active: true
    post("com.vexolith.barquell.toggle"); // Active: false
    EXPECT_FALSE(touchPasses());
    prepareSettings(); // as the next start does
    EXPECT_TRUE(sameValue(stored("Enabled"), false));
    EXPECT_TRUE(touchPasses());
}

TEST_F(EntryTest, HostileSettingsStartTheProgramAllTheSame) {
    const QVariant hostile[] = {QVariantList{1, 2},
                                QVariantMap{{QStringLiteral("a"), 1}},
                                QByteArray("x"),
                                QStringLiteral("\u202Enonsense"),
                                -1e300,
                                qlonglong{-9000000000}};
    int next = 0;
    for (const char *key : {"Enabled",
                            "PauseKeyAllowed",
                            "PauseKeyFn",
                            "PauseKeyCommandType",
                            "ClearPauseKeys",
                            "ShowStatusItem",
                            "ShowHUD",
                            "HUDLocation",
                            "SilentStart",
                            "Active",
                            "AnimatedWindowSizing",
                            "BypassApps",
                            "ToggleShortcut",
                            "ToggleShortcutEnabled",
                            "RevealShortcut",
                            "OptionalDockIcon",
                            "LaunchAtStart",
                            "LazyQuit",
                            "LTADisplayDate",
                            "PreferencesWindowTabIdentifier",
                            "PreferencesWindowTabSize Apps"}) {
        set(key, hostile[static_cast<std::size_t>(next++) % std::size(hostile)]);
    }
    launch();
    here.loop.advanceBy(std::chrono::seconds(1));
    bringToFront(QStringLiteral("org.example.editor"));
    set("Enabled", true);
    EXPECT_FALSE(touchPasses());
}

TEST_F(EntryTest, AProgramWhoseMainMenuIsMissingBlocksAllTheSame) {
    InterfaceClasses::addObject(QStringLiteral("AppController"), [] { return nullptr; });
    launchSilently();
    EXPECT_EQ(application.mainMenu(), nullptr);
    EXPECT_FALSE(touchPasses());
}

} // namespace
} // namespace barquell::test
