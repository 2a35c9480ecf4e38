#include "platform/simulated/bar/SimulatedBar.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/UserDefaults.h"
#include "support/Place.h"

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include <gtest/gtest.h>

namespace barquell::test {

namespace {

SimulatedBar &theBar() {
    static SimulatedBar bar{[] { return ModifierFlags{0}; }};
    return bar;
}

/// The program's own blocking on the simulated bar, its window included.
class SimulatedBarTest : public testing::Test {
protected:
    SimulatedBarTest() {
        here.loop.runPending();
        Platform place = platform();
        place.eventTaps = &bar.eventTaps();
        place.modifierState = &bar.modifiers();
        place.accessibilityTrust = &bar.trust();
        installPlatform(place);
        UserDefaults::standard().registerDefaults({{QStringLiteral("Enabled"), true},
                                                   {QStringLiteral("PauseKeyAllowed"), true},
                                                   {QStringLiteral("PauseKeyFn"), true}});
        bar.show();
        TouchBarInterceptor::subscribeToUserDefaults();
    }

    void TearDown() override { bar.hide(); }

    static QWidget &window() {
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->objectName() == QLatin1String("SimulatedBarWindow")) {
                return *each;
            }
        }
        throw std::logic_error("no window");
    }

    template <typename Widget>
    static Widget &child(const char *name) {
        return *window().findChild<Widget *>(QString::fromLatin1(name));
    }

    static void click() {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(20, 10), QPointF(20, 10), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(&child<QWidget>("barView"), &event);
        }
    }

    static QString counts() {
        for (const QLabel *label : window().findChildren<QLabel *>()) {
            if (label->text().contains(QLatin1String("Held back"))) {
                return label->text();
            }
        }
        return {};
    }

    void trust(bool given) {
        child<QCheckBox>("trustCheckBox").setChecked(given);
        here.loop.advanceBy(std::chrono::seconds(1));
    }

    Place &here = place();
    SimulatedBar &bar = theBar(); // as long as the interceptor, whose tap it carries
};

} // namespace

TEST_F(SimulatedBarTest, AClickOnTheBarIsHeldBackAndCounted) {
    click();
    EXPECT_EQ(counts(), QStringLiteral("Held back: 1    Passed: 0"));
}

TEST_F(SimulatedBarTest, WithTheFnButtonDownAClickPasses) {
    child<QPushButton>("fnButton").setChecked(true);
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    click();
    EXPECT_EQ(counts(), QStringLiteral("Held back: 0    Passed: 1"));
    child<QPushButton>("fnButton").setChecked(false);
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
}

TEST_F(SimulatedBarTest, WithoutThePermissionTouchesPassUntilItIsGiven) {
    trust(false);
    click();
    EXPECT_EQ(counts(), QStringLiteral("Held back: 0    Passed: 1"));
    trust(true);
    click();
    EXPECT_EQ(counts(), QStringLiteral("Held back: 1    Passed: 1"));
}

TEST_F(SimulatedBarTest, ARequestForThePermissionShowsBesideItsSwitch) {
    trust(false);
    TouchBarInterceptor::requestAuthorization();
    bool asks = false;
    for (const QLabel *label : window().findChildren<QLabel *>()) {
        asks = asks || label->text().contains(QLatin1String("asks"));
    }
    EXPECT_TRUE(asks);
}

TEST_F(SimulatedBarTest, TheWindowNeverTakesTheKeyboard) {
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(window().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(SimulatedBarTest, ClosingItsWindowEndsTheProgram) {
    here.platform.lifecycle.journal.clear();
    window().close();
    EXPECT_EQ(here.platform.lifecycle.journal, std::vector<std::string>{"terminate"});
}

TEST_F(SimulatedBarTest, ItHidesNoOtherWindow) {
    EXPECT_FALSE(window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace barquell::test
