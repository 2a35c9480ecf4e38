#include "Devices.h"

#include "evdev/DeviceKind.h"
#include "recording/Recording.h"

#include <gtest/gtest.h>

namespace barquell::test {

using namespace evdev;

TEST(DeviceKindTest, TheBarsOfAllModelsAreKnownInRealRecordings) {
    for (const char *file : {"t2-session.yml", "m1-session.yml", "m2-session.yml", "palm-session.yml"}) {
        const auto recording = recording::readRecording(std::string(BARQUELL_TEST_DATA) + '/' + file);
        ASSERT_EQ(recording.devices.size(), 2U) << file;
        EXPECT_TRUE(isTouchBar(recording.devices[0].description)) << file;
        EXPECT_FALSE(isTouchBar(recording.devices[1].description)) << file;
        EXPECT_TRUE(isKeyboard(recording.devices[1].description)) << file;
        EXPECT_FALSE(isKeyboard(recording.devices[0].description)) << file;
    }
}

TEST(DeviceKindTest, ABarInKeyboardModeIsAKeyboard) {
    const auto recording = recording::readRecording(BARQUELL_TEST_DATA "/t2-keys.evemu");
    ASSERT_EQ(recording.devices.size(), 1U);
    EXPECT_TRUE(isKeyboard(recording.devices[0].description));
    EXPECT_FALSE(isTouchBar(recording.devices[0].description));
}

TEST(DeviceKindTest, TheNameAloneMakesNoBar) {
    DeviceDescription device;
    device.name = t2Bar().name;
    EXPECT_FALSE(isTouchBar(device));
    device = t2Bar();
    device.properties.reset();
    EXPECT_FALSE(isTouchBar(device));
}

TEST(DeviceKindTest, TheAxesAloneMakeNoBar) {
    for (const char *name : {"Some Touchscreen", "Touch Bar", "Touch Bar Display", ""}) {
        DeviceDescription device = t2Bar();
        device.name = name;
        EXPECT_FALSE(isTouchBar(device)) << name;
    }
}

TEST(DeviceKindTest, ImpossibleAxesMakeNoBar) {
    for (const std::uint16_t code : {kAbsMtSlot, kAbsMtTrackingId, kAbsMtPositionX, kAbsMtPositionY}) {
        DeviceDescription device = t2Bar();
        device.axes.erase(code);
        EXPECT_FALSE(isTouchBar(device)) << code;
    }
    DeviceDescription flat = t2Bar();
    flat.axes[kAbsMtPositionX] = {100, 100, 0, 0, 0};
    EXPECT_FALSE(isTouchBar(flat));
    for (const AxisInfo &slots : {AxisInfo{0, -1, 0, 0, 0}, AxisInfo{0, kMaximumSlots, 0, 0, 0},
                                  AxisInfo{0, INT32_MAX, 0, 0, 0}, AxisInfo{INT32_MIN, 10, 0, 0, 0}}) {
        DeviceDescription device = t2Bar();
        device.axes[kAbsMtSlot] = slots;
        EXPECT_FALSE(isTouchBar(device)) << slots.maximum;
    }
}

} // namespace barquell::test
