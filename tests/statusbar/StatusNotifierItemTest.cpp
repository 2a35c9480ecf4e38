#include "FakeRegister.h"

#include "platform/linux/session/MessageBus.h"
#include "platform/linux/statusbar/DesktopStatusBar.h"
#include "platform/simulated/ScriptedPlatform.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QApplication>
#include <QMenu>
#include <QPalette>
#include <QPixmap>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace std::chrono_literals;

QIcon square() {
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

int alphaInTheMiddle(const IconPixmap &pixmap) {
    const qsizetype middle = qsizetype{pixmap.width} * (pixmap.height / 2) + pixmap.width / 2;
    return static_cast<unsigned char>(pixmap.bytes.at(4 * middle));
}

/// A status item on a bus with a register.
class StatusNotifierItemTest : public testing::Test {
protected:
    StatusNotifierItemTest() {
        place.install();
        bar = std::make_unique<DesktopStatusBar>(session);
    }

    void createItem() {
        item = bar->createItem();
        item->setAutosaveName(QStringLiteral("MainItem"));
        item->setImage(square());
        item->setMenu(&menu);
        item->setClickHandler([this](const StatusItemClick &click) {
            clicks.push_back(click);
            return endsClicks;
        });
    }

    void createRegistered() {
        createItem();
        ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
    }

    std::vector<int> middleAlphas() {
        std::vector<int> alphas;
        for (const IconPixmap &pixmap : desktop->pixmaps()) {
            alphas.push_back(alphaInTheMiddle(pixmap));
        }
        return alphas;
    }

    LogCapture log;
    PrivateBus bus;
    std::unique_ptr<FakeRegister> desktop = std::make_unique<FakeRegister>(bus);
    SessionBus session;
    ScriptedPlatform place;
    QMenu menu;
    std::vector<StatusItemClick> clicks;
    bool endsClicks = false;
    std::unique_ptr<DesktopStatusBar> bar;
    std::unique_ptr<StatusBarItem> item;
};

} // namespace

TEST_F(StatusNotifierItemTest, RegistersUnderTheNameThatPanelsExpect) {
    createRegistered();
    EXPECT_THAT(
        desktop->items,
        ElementsAre(
            QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid())));
    EXPECT_TRUE(desktop->isOnBus(desktop->items.last()));
    EXPECT_TRUE(waitFor([this] { return bar->hasHost(); }));
}

TEST_F(StatusNotifierItemTest, SaysWhatItIsAndExportsNoMenu) {
    createRegistered();
    EXPECT_EQ(desktop->property("Id"), QStringLiteral("barquell-MainItem"));
    EXPECT_EQ(desktop->property("Title"), QStringLiteral("Barquell"));
    EXPECT_EQ(desktop->property("Status"), QStringLiteral("Active"));
    EXPECT_EQ(desktop->property("ItemIsMenu"), false);
    EXPECT_EQ(desktop->property("IconName"), QString());
    EXPECT_FALSE(desktop->property("Menu").isValid());
}

TEST_F(StatusNotifierItemTest, RegistersAgainWhenTheRegisterIsReplaced) {
    createRegistered();
    const QString name = desktop->items.last();
    desktop.reset();
    desktop = std::make_unique<FakeRegister>(bus);
    EXPECT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
    EXPECT_THAT(desktop->items, ElementsAre(name));
    EXPECT_TRUE(item->isVisible());
}

TEST_F(StatusNotifierItemTest, RegistersOnceWithOneRegisterWhicheverPanelsComeAndGo) {
    createRegistered();
    ASSERT_TRUE(waitFor([this] { return bar->hasHost(); }));
    desktop->setPanel(false);
    ASSERT_TRUE(waitFor([this] { return !bar->hasHost(); }));
    desktop->setPanel(true);
    ASSERT_TRUE(waitFor([this] { return bar->hasHost(); }));
    EXPECT_THAT(desktop->items, SizeIs(1));
}

TEST_F(StatusNotifierItemTest, ComesWhenARegisterComesLater) {
    desktop.reset();
    createItem();
    runFor(100ms);
    EXPECT_FALSE(bar->hasHost());
    desktop = std::make_unique<FakeRegister>(bus);
    EXPECT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
}

TEST_F(StatusNotifierItemTest, APanelThatVanishesIsNoRemovalByTheUser) {
    createItem();
    std::vector<bool> told;
    item->watchVisibility([&told](bool visible) { told.push_back(visible); });
    ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty() && bar->hasHost(); }));
    desktop.reset();
    ASSERT_TRUE(waitFor([this] { return !bar->hasHost(); }));
    EXPECT_TRUE(item->isVisible());
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(StatusNotifierItemTest, TheOpacityIsInThePixels) {
    createItem();
    item->setOpacity(1.0);
    ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
    EXPECT_THAT(middleAlphas(), testing::Each(255));
    item->setOpacity(0.5);
    ASSERT_TRUE(waitFor([this] { return desktop->newIcons > 0; }));
    EXPECT_THAT(middleAlphas(), testing::Each(testing::AllOf(testing::Ge(127), testing::Le(128))));
    EXPECT_THAT(middleAlphas(), testing::Not(IsEmpty()));
}

TEST_F(StatusNotifierItemTest, TheShapeTakesTheColourOfTheDesktopAndFollowsItsChange) {
    createRegistered();
    const auto red = [this] {
        return static_cast<unsigned char>(desktop->pixmaps().last().bytes.at(1 + 4 * 8256));
    };
    QPalette palette;
    for (const QColor &color : {QColor(Qt::white), QColor(Qt::black)}) {
        const int before = desktop->newIcons;
        palette.setColor(QPalette::WindowText, color);
        QApplication::setPalette(palette);
        waitFor([&] { return desktop->newIcons > before; }, 2s);
        EXPECT_EQ(red(), color.red());
    }
}

TEST_F(StatusNotifierItemTest, AMissingImageLeavesAnItemWithoutOne) {
    createItem();
    item->setImage(QIcon());
    ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
    EXPECT_THAT(desktop->pixmaps(), IsEmpty());
    EXPECT_EQ(desktop->property("Status"), QStringLiteral("Active"));
}

TEST_F(StatusNotifierItemTest, TheToolTipIsShownAndTakenAway) {
    createRegistered();
    const auto title = [this] { return qdbus_cast<NotifierToolTip>(desktop->property("ToolTip")).title; };
    EXPECT_EQ(title(), QString());
    item->setToolTip(QStringLiteral("Authorization Required"));
    ASSERT_TRUE(waitFor([this] { return desktop->newToolTips == 1; }));
    EXPECT_EQ(title(), QStringLiteral("Authorization Required"));
    item->setToolTip(QString());
    ASSERT_TRUE(waitFor([this] { return desktop->newToolTips == 2; }));
    EXPECT_EQ(title(), QString());
}

TEST_F(StatusNotifierItemTest, WhatIsSetInARowIsOneChangeOnThePanelAndNothingNewIsNone) {
    createRegistered();
    item->setOpacity(0.7);
    item->setOpacity(0.5);
    ASSERT_TRUE(waitFor([this] { return desktop->newIcons > 0; }));
    item->setImage(square());
    item->setOpacity(0.5);
    item->setToolTip(QStringLiteral("end"));
    ASSERT_TRUE(waitFor([this] { return desktop->newToolTips > 0; }));
    EXPECT_EQ(desktop->newIcons, 1);
}

TEST_F(StatusNotifierItemTest, AnInvisibleItemIsPassive) {
    createRegistered();
    std::vector<bool> told;
    item->watchVisibility([&told](bool visible) { told.push_back(visible); });
    item->setVisible(false);
    EXPECT_THAT(told, ElementsAre(false));
    ASSERT_TRUE(waitFor([this] { return !desktop->newStatuses.isEmpty(); }));
    EXPECT_THAT(desktop->newStatuses, ElementsAre(QStringLiteral("Passive")));
    EXPECT_EQ(desktop->property("Status"), QStringLiteral("Passive"));
}

TEST_F(StatusNotifierItemTest, WhoHearsThatItIsInvisibleMayDropIt) {
    createRegistered();
    const QString name = desktop->items.last();
    item->watchVisibility([this](bool /*visible*/) { item.reset(); });
    item->setVisible(false);
    EXPECT_EQ(item, nullptr);
    EXPECT_TRUE(waitFor([&] { return !desktop->isOnBus(name); }));
}

TEST_F(StatusNotifierItemTest, ActivateOpensTheMenuAtThePlaceOfTheClick) {
    createRegistered();
    menu.addAction(QStringLiteral("entry"));
    desktop->click("Activate", 100, 40);
    ASSERT_TRUE(waitFor([this] { return menu.isVisible(); }));
    EXPECT_EQ(menu.pos(), QPoint(100, 40));
    ASSERT_THAT(clicks, SizeIs(1));
    EXPECT_FALSE(clicks[0].right);
    EXPECT_EQ(clicks[0].modifierFlags, 0u);
}

TEST_F(StatusNotifierItemTest, ContextMenuAndTheMiddleButtonAreTheRightClick) {
    createRegistered();
    for (const char *method : {"ContextMenu", "SecondaryActivate"}) {
        clicks.clear();
        desktop->click(method, 1, 2);
        ASSERT_TRUE(waitFor([this] { return !clicks.empty(); }));
        EXPECT_TRUE(clicks[0].right);
    }
}

TEST_F(StatusNotifierItemTest, AClickThatEndsOpensNoMenu) {
    createRegistered();
    menu.addAction(QStringLiteral("entry"));
    endsClicks = true;
    desktop->click("Activate", 1, 2);
    ASSERT_TRUE(waitFor([this] { return !clicks.empty(); }));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(StatusNotifierItemTest, AClickCarriesTheModifiersThatAreHeld) {
    createRegistered();
    place.modifiers.flags = kFlagControl | kFlagShift;
    desktop->click("Activate", 1, 2);
    ASSERT_TRUE(waitFor([this] { return !clicks.empty(); }));
    EXPECT_EQ(clicks[0].modifierFlags, kFlagControl | kFlagShift);
}

TEST_F(StatusNotifierItemTest, AClickAfterTheMenuWasTornDownIsHarmless) {
    createRegistered();
    {
        QMenu shortLived;
        item->setMenu(&shortLived);
    }
    desktop->click("Activate", 1, 2);
    EXPECT_TRUE(waitFor([this] { return !clicks.empty(); }));
    item->performClick();
}

TEST_F(StatusNotifierItemTest, AnItemThatIsDroppedLeavesTheBus) {
    createRegistered();
    const QString name = desktop->items.last();
    item.reset();
    EXPECT_TRUE(waitFor([&] { return !desktop->isOnBus(name); }));
}

TEST_F(StatusNotifierItemTest, ComesAgainWhenTheBusIsRestarted) {
    createRegistered();
    item->setToolTip(QStringLiteral("before"));
    for (int restarts = 1; restarts <= 2; ++restarts) {
        ASSERT_TRUE(waitFor([this] { return bar->hasHost(); }));
        bus.kill();
        ASSERT_TRUE(waitFor([this] { return !bar->hasHost(); }));
        item->setToolTip(QStringLiteral("without a bus"));
        desktop.reset();
        bus.start();
        desktop = std::make_unique<FakeRegister>(bus);
        ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
        EXPECT_THAT(desktop->items, SizeIs(1));
        EXPECT_TRUE(desktop->isOnBus(desktop->items.last()));
        EXPECT_EQ(qdbus_cast<NotifierToolTip>(desktop->property("ToolTip")).title,
                  QStringLiteral("without a bus"));
        clicks.clear();
        desktop->click("ContextMenu", 1, 2);
        EXPECT_TRUE(waitFor([this] { return clicks.size() == 1; }));
    }
    EXPECT_TRUE(waitFor([this] { return bar->hasHost(); }));
}

TEST_F(StatusNotifierItemTest, FollowsTheRegistersOfANewBusAsThoseOfTheFirst) {
    createRegistered();
    bus.kill();
    ASSERT_TRUE(waitFor([this] { return !session.isConnected(); }));
    desktop.reset();
    bus.start();
    ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    EXPECT_FALSE(bar->hasHost());
    desktop = std::make_unique<FakeRegister>(bus, false);
    ASSERT_TRUE(waitFor([this] { return !desktop->items.isEmpty(); }));
    EXPECT_FALSE(bar->hasHost());
    desktop->setPanel(true);
    EXPECT_TRUE(waitFor([this] { return bar->hasHost(); }));
    desktop.reset();
    EXPECT_TRUE(waitFor([this] { return !bar->hasHost(); }));
}

TEST(StatusBarWithoutABusTest, IsSaidInOneLineAndTheItemComesWithTheBus) {
    PrivateBus bus(PrivateBus::Beginning::Absent);
    ScriptedPlatform place;
    place.install();
    const LogCapture log;
    SessionBus session;
    DesktopStatusBar bar(session);
    for (int item = 0; item < 2; ++item) {
        bar.createItem();
        runFor(100ms);
    }
    const auto item = bar.createItem();
    item->setImage(square());
    item->setVisible(true);
    runFor(100ms);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("No session bus; other programs can not be heard")));
    EXPECT_FALSE(bar.hasHost());
    bus.start();
    FakeRegister desktop(bus);
    EXPECT_TRUE(waitFor([&] { return !desktop.items.isEmpty() && bar.hasHost(); }));
    EXPECT_THAT(desktop.items, SizeIs(1));
}

} // namespace barquell::test
