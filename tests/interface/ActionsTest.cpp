#include "interface/Forms.h"
#include "platform/AppLifecycle.h"

#include <QMenu>

namespace barquell::test {
namespace {

using ActionsTest = FormTest;

const QByteArray kMenu = widget("QMenu", "menu",
                                action("first", says("action", "owner.press:")) + action("second") +
                                    "<addaction name=\"first\"/><addaction name=\"second\"/>");

TEST_F(ActionsTest, AClickReachesTheTargetWithTheButton) {
    ASSERT_TRUE(load(widget("QPushButton", "push", says("action", "owner.press:"))));
    auto *push = find<QPushButton>("push");
    push->click();
    EXPECT_EQ(owner.senders, QList<QObject *>{push});
}

TEST_F(ActionsTest, AnObjectOfTheFileIsATarget) {
    ASSERT_TRUE(load(widget("QPushButton", "push", says("action", "c.press:")) +
                     widget("QWidget", "c", says("objectClass", "Controller"))));
    find<QPushButton>("push")->click();
    EXPECT_EQ(find<Controller>("c")->senders.size(), 1);
}

TEST_F(ActionsTest, ATargetThatIsGoneIsSaid) {
    ASSERT_TRUE(load(widget("QPushButton", "push", says("action", "c.press:")) +
                     widget("QWidget", "c", says("objectClass", "Controller"))));
    auto *push = find<QPushButton>("push");
    delete find<Controller>("c"); // NOLINT(cppcoreguidelines-owning-memory): its holders know
    push->click();
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(ActionsTest, AChosenMenuItemReachesTheTarget) {
    ASSERT_TRUE(load(kMenu));
    auto *item = find<QAction>("first");
    item->trigger();
    EXPECT_EQ(owner.senders, QList<QObject *>{item});
}

TEST_F(ActionsTest, AMenuAsksItsTargetsBeforeItOpens) {
    ASSERT_TRUE(load(kMenu));
    auto *item = find<QAction>("first");
    auto *menu = find<QMenu>("menu");
    owner.valid = false;
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(owner.asked, QList<QObject *>{item});
    EXPECT_FALSE(item->isEnabled());
    EXPECT_TRUE(find<QAction>("second")->isEnabled());
    owner.valid = true;
    Q_EMIT menu->aboutToShow();
    EXPECT_TRUE(item->isEnabled());
}

TEST_F(ActionsTest, AnItemThatIsChosenWithoutItsMenuAsksFirst) {
    ASSERT_TRUE(load(kMenu));
    auto *item = find<QAction>("first");
    owner.valid = false;
    item->trigger();
    EXPECT_EQ(owner.asked, QList<QObject *>{item});
    EXPECT_TRUE(owner.senders.isEmpty());
    owner.valid = true;
    item->trigger();
    EXPECT_EQ(owner.senders, QList<QObject *>{item});
}

TEST_F(ActionsTest, AMenuStaysAMenuWithoutItsParent) {
    ASSERT_TRUE(load(kMenu));
    EXPECT_EQ(find<QMenu>("menu")->windowType(), Qt::Popup);
}

class Delegate final : public QObject, public AppLifecycleDelegate {
    Q_OBJECT

public:
    void applicationDidFinishLaunching() override {}
    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override { return true; }
    void applicationWillTerminate() override {}
    Q_INVOKABLE void press(const QVariant & /*sender*/) { ++presses; }

    int presses = 0;
};

class Lifecycle final : public AppLifecycle {
public:
    void setDelegate(AppLifecycleDelegate *delegate) override { _delegate = delegate; }
    AppLifecycleDelegate *delegate() const override { return _delegate; }
    int run() override { return 0; }
    void terminate() override {}
    ActivationPolicy activationPolicy() const override { return ActivationPolicy::Regular; }
    void setActivationPolicy(ActivationPolicy /*policy*/) override {}
    void activate() override {}
    void bringFirstProcessToFront() override {}

private:
    AppLifecycleDelegate *_delegate = nullptr;
};

TEST_F(ActionsTest, TheDelegateIsLookedUpWhenTheActionIsSent) {
    Lifecycle lifecycle;
    Platform withLifecycle = platform();
    withLifecycle.appLifecycle = &lifecycle;
    installPlatform(withLifecycle);
    ASSERT_TRUE(load(widget("QPushButton", "push", says("action", "delegate.press:"))));
    auto *push = find<QPushButton>("push");
    push->click();
    EXPECT_EQ(logged.lines.size(), 1); // nobody there yet
    Delegate delegate;
    lifecycle.setDelegate(&delegate);
    push->click();
    EXPECT_EQ(delegate.presses, 1);
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(ActionsTest, AnActionThatNobodyTakesSpoilsTheFile) {
    for (const char *wrong :
         {"owner.missing:", "nobody.press:", "owner.press", "press:", "owner.press:with:"}) {
        complaint.clear();
        EXPECT_FALSE(load(widget("QPushButton", "push", says("action", wrong)))) << wrong;
        EXPECT_FALSE(complaint.isEmpty());
    }
    EXPECT_FALSE(load(widget("QLabel", "label", says("action", "owner.press:"))));
}

} // namespace
} // namespace barquell::test

#include "ActionsTest.moc"
