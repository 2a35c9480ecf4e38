#include "process/Windows.h"

#include "foundation/NotificationCenter.h"

#include <gmock/gmock.h>

#include <QCloseEvent>
#include <QDialog>
#include <QMenu>

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WindowClosingTest : public testing::Test {
protected:
    WindowClosingTest() {
        announceClosingWindows();
        NotificationCenter::defaultCenter().addObserver(
            _observer, QStringLiteral("NSWindowWillCloseNotification"),
            [this](const Notification &notification) { closed.push_back(notification.object); });
    }

    std::vector<QObject *> closed;

private:
    QObject _observer;
};

class StubbornWindow final : public QWidget {
public:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

class CountingWindow final : public QWidget {
public:
    void closeEvent(QCloseEvent * /*event*/) override { ++asked; }

    int asked = 0;
};

TEST_F(WindowClosingTest, AWindowThatClosesIsAnnouncedOnce) {
    announceClosingWindows();
    QWidget window;
    window.show();
    window.close();
    EXPECT_THAT(closed, ElementsAre(&window));
}

TEST_F(WindowClosingTest, AWindowThatIsShownAgainIsAnnouncedAgain) {
    QWidget window;
    for (int i = 0; i < 2; ++i) {
        window.show();
        window.close();
    }
    EXPECT_THAT(closed, ElementsAre(&window, &window));
}

TEST_F(WindowClosingTest, AWindowThatRefusesToCloseIsNotAnnounced) {
    StubbornWindow window;
    window.show();
    EXPECT_FALSE(window.close());
    EXPECT_THAT(closed, IsEmpty());
}

TEST_F(WindowClosingTest, AWindowThatRefusedAndIsHiddenLaterIsNotAnnounced) {
    StubbornWindow window;
    window.show();
    EXPECT_FALSE(window.close());
    window.hide();
    EXPECT_THAT(closed, IsEmpty());
}

TEST_F(WindowClosingTest, AWindowIsAskedOnce) {
    CountingWindow window;
    window.show();
    EXPECT_TRUE(window.close());
    EXPECT_EQ(window.asked, 1);
    EXPECT_THAT(closed, ElementsAre(&window));
}

TEST_F(WindowClosingTest, HidingAWindowClosesNothing) {
    QWidget window;
    window.show();
    window.hide();
    EXPECT_THAT(closed, IsEmpty());
}

TEST_F(WindowClosingTest, AWidgetWithinAWindowIsNoWindow) {
    QWidget window;
    auto *child = new QWidget(&window); // NOLINT(cppcoreguidelines-owning-memory): its parent's
    window.show();
    child->close();
    EXPECT_THAT(closed, IsEmpty());
}

TEST(CloseButtonTest, AnOrdinaryWindowCanBeClosed) {
    EXPECT_TRUE(hasEnabledCloseButton(QWidget()));
}

TEST(CloseButtonTest, AWindowWithoutTheButtonCannot) {
    const QWidget window(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    EXPECT_FALSE(hasEnabledCloseButton(window));
}

TEST(CloseButtonTest, ASheetDisablesTheButtonWhileItIsOpen) {
    QWidget window;
    QWidget other;
    window.show();
    QDialog sheet(&window);
    sheet.setWindowModality(Qt::WindowModal);
    EXPECT_TRUE(hasEnabledCloseButton(window));
    sheet.open();
    EXPECT_FALSE(hasEnabledCloseButton(window));
    EXPECT_TRUE(hasEnabledCloseButton(other));
    sheet.close();
    EXPECT_TRUE(hasEnabledCloseButton(window));
}

TEST(CloseButtonTest, AWindowBesideItThatIsNotModalDoesNotMatter) {
    QWidget window;
    window.show();
    QDialog beside(&window);
    beside.setModal(false);
    beside.show();
    EXPECT_TRUE(hasEnabledCloseButton(window));
}

} // namespace
} // namespace barquell::test
