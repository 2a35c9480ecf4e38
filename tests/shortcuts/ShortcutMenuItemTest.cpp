#include "shortcuts/controls/ShortcutMenuItem.h"

#include "foundation/UserDefaults.h"
#include "support/Place.h"

#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

class ShortcutMenuItemTest : public testing::Test {
protected:
    ShortcutMenuItemTest() {
        place();
        store(32, 0x1C0000);
        setEnabledSetting(true);
        item.setShortcutName(name());
    }

    static QString name() { return QStringLiteral("Light"); }
    static void store(std::uint64_t keyCode, ModifierFlags flags) {
        UserDefaults::standard().setObject(Shortcut::storageRepresentation(keyCode, flags), name());
    }
    static void setEnabledSetting(bool enabled) {
        UserDefaults::standard().setObject(enabled, name() + QStringLiteral("Enabled"));
    }

    ShortcutMenuItem item;
};

} // namespace

TEST_F(ShortcutMenuItemTest, ShowsTheShortcutAtOnce) {
    item.awakeFromNib();
    EXPECT_EQ(item.keyEquivalent(), QStringLiteral("u"));
    EXPECT_EQ(item.keyEquivalentModifierMask(), 0x1C0000U);
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::CTRL | Qt::ALT | Qt::META | Qt::Key_U));
}

TEST_F(ShortcutMenuItemTest, ShowsNoneWhileTheShortcutIsSwitchedOff) {
    item.awakeFromNib();
    setEnabledSetting(false);
    EXPECT_EQ(item.keyEquivalent(), QString());
    EXPECT_EQ(item.keyEquivalentModifierMask(), 0U);
    EXPECT_TRUE(item.shortcut().isEmpty());
    setEnabledSetting(true);
    EXPECT_EQ(item.keyEquivalent(), QStringLiteral("u"));
}

TEST_F(ShortcutMenuItemTest, ShowsNoneWithoutAShortcut) {
    item.awakeFromNib();
    ShortcutMonitor::monitorWithName(name())->setShortcut(std::nullopt);
    EXPECT_EQ(item.keyEquivalent(), QString());
    EXPECT_TRUE(item.shortcut().isEmpty());
}

TEST_F(ShortcutMenuItemTest, FollowsAnotherShortcut) {
    item.awakeFromNib();
    store(96, 0);
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::Key_F5));
}

TEST_F(ShortcutMenuItemTest, TheSwitchOfAllMonitorsDoesNotMatter) {
    item.awakeFromNib();
    ShortcutMonitor::setEnabled(false);
    store(96, 0);
    EXPECT_EQ(item.keyEquivalent(), QString(QChar(0xF708)));
}

TEST_F(ShortcutMenuItemTest, AnItemThatIsGoneIsToldNothing) {
    {
        ShortcutMenuItem brief;
        brief.setShortcutName(name());
        brief.awakeFromNib();
    }
    store(96, 0);
    EXPECT_EQ(ShortcutMonitor::monitorWithName(name())->shortcut()->keyCode(), 96U);
}

TEST_F(ShortcutMenuItemTest, ItOnlyShowsTheShortcutAndIsNotTriggeredByIt) {
    item.awakeFromNib();
    store(96, kFlagControl);
    item.setText(QStringLiteral("Light"));
    QWidget window;
    QMenu menu(&window);
    menu.addAction(&item);
    int triggered = 0;
    QObject::connect(&item, &QAction::triggered, &item, [&] { ++triggered; });
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(item.isShortcutVisibleInContextMenu());
    QTest::keyClick(window.windowHandle(), Qt::Key_F5, Qt::ControlModifier);
    menu.popup(window.pos());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    QTest::keyClick(menu.windowHandle(), Qt::Key_F5, Qt::ControlModifier);
    EXPECT_EQ(triggered, 0);
}

} // namespace barquell::test
