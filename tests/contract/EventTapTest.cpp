// What a tap in the events' road keeps to.

#include "platform/EventTap.h"
#include "contract/ContractPlace.h"
#include "platform/AccessibilityTrust.h"
#include "platform/ModifierState.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

namespace barquell::test {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr EventMask kMask = maskOf(EventType::FlagsChanged) | maskOf(EventType::Gesture);
constexpr milliseconds kAMoment{100};

std::vector<EventType> &seen() {
    static std::vector<EventType> types;
    return types;
}

Event *pass(EventType type, Event *event) {
    seen().push_back(type);
    return event;
}

std::function<void()> drop;

Event *dropTheTap(EventType type, Event *event) {
    seen().push_back(type);
    drop();
    return event;
}

class EventTapContract : public Contract {
protected:
    EventTapContract() { seen().clear(); }

    /// On a place that lets us.
    void install(EventTapCallback callback = pass) {
        tap = pieces.eventTaps->create(kMask, callback);
        ASSERT_NE(tap, nullptr);
        source = tap->createRunLoopSource();
        ASSERT_NE(source, nullptr);
        tap->setEnabled(true);
        source->addToMainRunLoop();
    }

    LogCapture lines;
    std::unique_ptr<EventTap> tap;
    std::unique_ptr<EventTapSource> source;
};

TEST_P(EventTapContract, TheTrustIsTheUsersLastWord) {
    NEEDS_HAND(place->setTrusted(false));
    EXPECT_FALSE(pieces.accessibilityTrust->isProcessTrusted());
    NEEDS_HAND(place->setTrusted(true));
    EXPECT_TRUE(pieces.accessibilityTrust->isProcessTrusted());
}

TEST_P(EventTapContract, WithoutTheTrustThereIsNoTap) {
    NEEDS_HAND(place->setTrusted(false));
    EXPECT_EQ(pieces.eventTaps->create(kMask, pass), nullptr);
}

TEST_P(EventTapContract, ATapIsMadeWhereNothingIsPluggedIn) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    EXPECT_THAT(seen(), IsEmpty());
}

TEST_P(EventTapContract, AnEnabledTapIsCalledForWhatItNamed) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    NEEDS_HAND(place->touch());
    ASSERT_TRUE(waitFor([] { return !seen().empty(); }));
    EXPECT_THAT(seen(), ElementsAre(EventType::Gesture));
}

TEST_P(EventTapContract, ADisabledTapIsNotCalledAndLaterIsAgain) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    tap->setEnabled(false);
    NEEDS_HAND(place->touch());
    runFor(kAMoment);
    EXPECT_THAT(seen(), IsEmpty());
    tap->setEnabled(true);
    place->touch();
    EXPECT_TRUE(waitFor([] { return !seen().empty(); }));
}

TEST_P(EventTapContract, ATapThatHasGoneIsNotCalled) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    source.reset();
    tap.reset();
    NEEDS_HAND(place->touch());
    runFor(kAMoment);
    EXPECT_THAT(seen(), IsEmpty());
}

TEST_P(EventTapContract, ATapMayGoInItsOwnCallback) {
    NEEDS_HAND(place->setTrusted(true));
    drop = [this] {
        source.reset(); // which the tap outlives
        tap.reset();
    };
    install(dropTheTap);
    NEEDS_HAND(place->touch());
    ASSERT_TRUE(waitFor([] { return !seen().empty(); }));
    EXPECT_EQ(tap, nullptr);
}

TEST_P(EventTapContract, ANewTapTakesThePlaceOfTheOld) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    source.reset();
    tap.reset();
    install();
    NEEDS_HAND(place->touch());
    EXPECT_TRUE(waitFor([] { return !seen().empty(); }));
}

TEST_P(EventTapContract, TheModifierStateFollowsTheKeys) {
    NEEDS_HAND(place->setTrusted(true));
    install();
    NEEDS_HAND(place->holdModifiers(kFlagFn | kFlagCommand | kFlagRightCommand));
    EXPECT_TRUE(waitFor([this] {
        return pieces.modifierState->currentFlags() == (kFlagFn | kFlagCommand | kFlagRightCommand);
    }));
    EXPECT_THAT(seen(), ElementsAre(EventType::FlagsChanged));
    place->holdModifiers(0);
    EXPECT_TRUE(waitFor([this] { return pieces.modifierState->currentFlags() == 0; }));
}

ON_EVERY_PLACE(EventTapContract);

} // namespace
} // namespace barquell::test
