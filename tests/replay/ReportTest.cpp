#include "app/replay/JsonReport.h"
#include "app/replay/TableReport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace barquell::test {

using namespace replay;

namespace {

const std::string kBar = "Bar \"1\"\n";

ReplayedEvent touch(std::int64_t time, int touching, bool passed) {
    return {time,
            kBar,
            EventType::Gesture,
            kFlagShift | kFlagLeftShift,
            2,
            touching,
            passed,
            passed ? Reason::NothingTouches : Reason::Touching};
}

} // namespace

TEST(ReportTest, JsonHasOneObjectALine) {
    std::ostringstream out;
    JsonReport report(out);
    report.stateChange({0, 1, true});
    report.event(touch(1500000, 1, false));
    report.event({1600001, kBar, EventType::FlagsChanged, kFlagFn, 0, 0, true, Reason::NotHeldBack});
    report.event({1600002, kBar, EventType::SystemDefined, 0, 0, 0, true, Reason::ModifiersStripped});
    report.event(touch(12000000, 0, true));
    report.finish();
    EXPECT_EQ(
        out.str(),
        "{\"time\": 0.000000, \"stateChange\": 1, \"effectivelyEnabled\": true}\n"
        "{\"time\": 1.500000, \"device\": \"Bar \\\"1\\\"\\n\", \"event\": \"gesture\", \"flags\": "
        "\"0x20002\", "
        "\"touches\": 2, \"touching\": 1, \"verdict\": \"swallow\"}\n"
        "{\"time\": 1.600001, \"device\": \"Bar \\\"1\\\"\\n\", \"event\": \"flagsChanged\", \"flags\": "
        "\"0x800000\", \"touches\": 0, \"touching\": 0, \"verdict\": \"pass\"}\n"
        "{\"time\": 1.600002, \"device\": \"Bar \\\"1\\\"\\n\", \"event\": \"systemDefined\", \"flags\": "
        "\"0x0\", "
        "\"touches\": 0, \"touching\": 0, \"verdict\": \"pass\"}\n"
        "{\"time\": 12.000000, \"device\": \"Bar \\\"1\\\"\\n\", \"event\": \"gesture\", \"flags\": "
        "\"0x20002\", "
        "\"touches\": 2, \"touching\": 0, \"verdict\": \"pass\"}\n"
        "{\"summary\": {\"gestures\": 2, \"passed\": 1, \"swallowed\": 1, \"stateChanges\": 1}}\n");
}

TEST(ReportTest, TheTableGathersFramesThatShareTheirOutcome) {
    std::ostringstream out;
    TableReport report(out);
    report.stateChange({1000000, 1, true});
    report.event(touch(1000000, 1, false));
    report.event(touch(1010000, 1, false));
    report.event(touch(1020000, 0, true));
    report.finish();
    EXPECT_EQ(
        out.str(),
        "Seconds            Event             Keys held      Fingers  Verdict  Why\n"
        "1.000              * Blocking is in force (the pause keys)\n"
        "1.000 - 1.010      touch x2          ShiftL         1        BLOCKED  a finger on the bar while "
        "blocking "
        "is in force\n"
        "1.020              touch             ShiftL         0        passed   no finger is left on the bar\n"
        "\n"
        "3 touch frames: 1 passed, 2 blocked. 1 change of state.\n");
}

} // namespace barquell::test
