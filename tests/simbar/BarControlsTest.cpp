#include "platform/simulated/bar/BarControls.h"

#include <gtest/gtest.h>

namespace barquell::test {

namespace {

std::size_t named(const char *name) {
    const auto &controls = barControls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (controls[i].name == QLatin1String(name)) {
            return i;
        }
    }
    ADD_FAILURE() << "no control " << name;
    return 0;
}

double middleOf(const char *name) {
    const BarControl &control = barControls().at(named(name));
    return control.left + control.width / 2;
}

} // namespace

TEST(BarControlsTest, ControlsStandApartOnTheBarFromLeftToRight) {
    double end = 0;
    for (const BarControl &control : barControls()) {
        EXPECT_GE(control.left, end) << qPrintable(control.name);
        end = control.right();
    }
    EXPECT_LE(end, kBarWidth);
    EXPECT_GT(barControls().size(), 5U);
}

TEST(BarControlsTest, AKeyIsLitWhileAFingerIsOnIt) {
    BarControls controls;
    const std::size_t esc = named("Esc");
    EXPECT_FALSE(controls.isLit(esc));
    controls.fingerDown(1, middleOf("Esc"));
    EXPECT_TRUE(controls.isLit(esc));
    controls.fingerDown(2, middleOf("Esc"));
    controls.fingerUp(1);
    EXPECT_TRUE(controls.isLit(esc));
    controls.fingerUp(2);
    EXPECT_FALSE(controls.isLit(esc));
}

TEST(BarControlsTest, ASliderFollowsTheFingerThatTookItAndStopsAtItsEnds) {
    BarControls controls;
    const std::size_t volume = named("Volume");
    const BarControl &slider = barControls().at(volume);
    controls.fingerDown(1, slider.left + slider.width / 4);
    EXPECT_DOUBLE_EQ(controls.value(volume), 0.25);
    controls.fingerMoved(1, kBarWidth);
    EXPECT_DOUBLE_EQ(controls.value(volume), 1.0);
    controls.fingerMoved(1, 0);
    EXPECT_DOUBLE_EQ(controls.value(volume), 0.0);
    controls.fingerUp(1);
    controls.fingerMoved(1, kBarWidth);
    EXPECT_DOUBLE_EQ(controls.value(volume), 0.0);
}

TEST(BarControlsTest, AFingerBesideEveryControlTakesNone) {
    BarControls controls;
    controls.fingerDown(1, barControls().front().right() + 1);
    controls.fingerMoved(1, middleOf("Volume"));
    EXPECT_DOUBLE_EQ(controls.value(named("Volume")), 0.5);
    for (std::size_t i = 0; i < barControls().size(); ++i) {
        EXPECT_FALSE(controls.isLit(i));
    }
}

} // namespace barquell::test
