#include "foundation/UserDefaults.h"
#include "menubar/KeyEquivalent.h"
#include "menubar/LazyQuitMenuItemsBinding.h"
#include "menubar/QuitMenuItem.h"
#include "support/Place.h"

#include <QAction>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

void setLazyQuit(const QVariant &value) {
    UserDefaults::standard().setObject(value, QStringLiteral("LazyQuit"));
}

class LazyQuitTest : public testing::Test {
protected:
    LazyQuitTest() { place(); }

    void expectKeys(const char *quit, const char *background) {
        EXPECT_EQ(keyEquivalent(*quitItem), QLatin1String(quit));
        EXPECT_EQ(keyEquivalent(backgroundItem), QLatin1String(background));
    }

    QAction backgroundItem;
    QAction *quitItem = nullptr;
};

/// The quit item that follows the setting by itself.
class QuitMenuItemTest : public LazyQuitTest {
protected:
    QuitMenuItemTest() {
        item.setBackgroundModeMenuItem(&backgroundItem);
        quitItem = &item;
    }

    QuitMenuItem item;
};

/// The binding that holds two plain items.
class LazyQuitMenuItemsBindingTest : public LazyQuitTest {
protected:
    LazyQuitMenuItemsBindingTest() {
        binding.setQuitMenuItem(&plainItem);
        binding.setBackgroundModeMenuItem(&backgroundItem);
        quitItem = &plainItem;
    }

    QAction plainItem;
    LazyQuitMenuItemsBinding binding;
};

} // namespace

TEST_F(QuitMenuItemTest, TurningLazyQuitOnMovesTheKeyAtOnceAndOffRestoresBoth) {
    item.awakeFromNib();
    expectKeys("q", "b");
    setLazyQuit(true);
    expectKeys("", "q");
    setLazyQuit(false);
    expectKeys("q", "b");
}

TEST_F(QuitMenuItemTest, TheStoredSettingHoldsFromTheStart) {
    setLazyQuit(true);
    QuitMenuItem late;
    late.setBackgroundModeMenuItem(&backgroundItem);
    late.awakeFromNib();
    EXPECT_EQ(keyEquivalent(late), QString());
    EXPECT_EQ(keyEquivalent(backgroundItem), QStringLiteral("q"));
}

TEST_F(QuitMenuItemTest, ARemovedSettingIsNo) {
    setLazyQuit(true);
    setLazyQuit({});
    expectKeys("q", "b");
}

TEST_F(QuitMenuItemTest, AMissingBackgroundItemIsNoError) {
    item.setBackgroundModeMenuItem(nullptr);
    setLazyQuit(true);
    EXPECT_EQ(keyEquivalent(item), QString());
}

TEST_F(QuitMenuItemTest, ABackgroundItemThatHasGoneIsNoError) {
    auto shortLived = std::make_unique<QAction>();
    item.setBackgroundModeMenuItem(shortLived.get());
    shortLived.reset();
    setLazyQuit(true);
    EXPECT_EQ(item.backgroundModeMenuItem(), nullptr);
}

TEST_F(QuitMenuItemTest, AnItemThatHasGoneObservesNoMore) {
    std::make_unique<QuitMenuItem>()->setBackgroundModeMenuItem(&backgroundItem);
    item.setBackgroundModeMenuItem(nullptr);
    setLazyQuit(true);
    EXPECT_EQ(keyEquivalent(backgroundItem), QString());
}

TEST_F(QuitMenuItemTest, AWriteThatIsNotToEchoReachesItAllTheSame) {
    KeyValueObserver writer;
    item.awakeFromNib();
    writer.setUserDefaultsValue(true, QStringLiteral("LazyQuit"));
    expectKeys("", "q");
}

TEST_F(QuitMenuItemTest, TheKeysComeWithTheModifiersThatTheFileNames) {
    backgroundItem.setProperty("keyEquivalentModifierMask", QStringLiteral("Ctrl+Shift+"));
    item.awakeFromNib();
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(backgroundItem.shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_B));
    setLazyQuit(true);
    EXPECT_TRUE(item.shortcut().isEmpty());
    EXPECT_EQ(backgroundItem.shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Q));
}

TEST_F(LazyQuitMenuItemsBindingTest, TurningLazyQuitOnMovesTheKeyAtOnceAndOffRestoresBoth) {
    binding.awakeFromNib();
    expectKeys("q", "b");
    setLazyQuit(true);
    expectKeys("", "q");
    setLazyQuit(false);
    expectKeys("q", "b");
}

TEST_F(LazyQuitMenuItemsBindingTest, ARemovedSettingIsNo) {
    setLazyQuit(true);
    binding.awakeFromNib();
    expectKeys("", "q");
    setLazyQuit({});
    expectKeys("q", "b");
}

TEST_F(LazyQuitMenuItemsBindingTest, MissingItemsAreNoError) {
    binding.setQuitMenuItem(nullptr);
    binding.setBackgroundModeMenuItem(nullptr);
    binding.awakeFromNib();
    setLazyQuit(true);
    EXPECT_TRUE(plainItem.shortcut().isEmpty());
}

TEST_F(QuitMenuItemTest, WithBothMechanismsTheKeysAreTheSameInEitherOrder) {
    LazyQuitMenuItemsBinding binding;
    binding.setQuitMenuItem(&item);
    binding.setBackgroundModeMenuItem(&backgroundItem);
    item.awakeFromNib();
    binding.awakeFromNib(); // told after the item
    setLazyQuit(true);
    expectKeys("", "q");

    auto later = std::make_unique<QuitMenuItem>(); // told after the binding
    later->setBackgroundModeMenuItem(&backgroundItem);
    binding.setQuitMenuItem(later.get());
    later->awakeFromNib();
    setLazyQuit(false);
    EXPECT_EQ(keyEquivalent(*later), QStringLiteral("q"));
    EXPECT_EQ(keyEquivalent(backgroundItem), QStringLiteral("b"));
    setLazyQuit(true);
    EXPECT_EQ(keyEquivalent(*later), QString());
    EXPECT_EQ(keyEquivalent(backgroundItem), QStringLiteral("q"));
}

} // namespace barquell::test
