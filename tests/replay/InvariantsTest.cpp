#include "Devices.h"

#include "app/RegisteredDefaults.h"
#include "app/replay/FilteredBar.h"
#include "blocking/TouchBarInterceptor.h"
#include "evdev/TouchReader.h"
#include "foundation/UserDefaults.h"
#include "support/Place.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <array>
#include <optional>

namespace barquell::test {

using namespace evdev;

namespace {

/// One step of a random session: an event of the bar, or something that happens around it.
struct Step {
    enum class Kind { Event, Modifiers, Setting, PauseFlags, Trust, RunLoop };

    Kind kind;
    InputEvent event;
    std::uint32_t choice;
};

constexpr std::array<const char *, 5> kSettings{"Enabled", "PauseKeyAllowed", "PauseKeyFn", "ClearPauseKeys",
                                                "PauseKeyShift"};

rc::Gen<InputEvent> axisEvents() {
    const auto code = rc::gen::element(kAbsMtSlot, kAbsMtTrackingId, kAbsMtPositionX, kAbsMtPositionY,
                                       kAbsMtToolType, kAbsX, std::uint16_t{0x70});
    const auto value = rc::gen::oneOf(rc::gen::inRange(-1, 12), rc::gen::arbitrary<std::int32_t>());
    return rc::gen::map(rc::gen::pair(code, value), [](const std::pair<std::uint16_t, std::int32_t> &axis) {
        return InputEvent{0, kEvAbs, axis.first, axis.second};
    });
}

rc::Gen<InputEvent> barEvents() {
    return rc::gen::weightedOneOf<InputEvent>({{10, axisEvents()},
                                               {4, rc::gen::just(InputEvent{0, kEvSyn, kSynReport, 0})},
                                               {1, rc::gen::just(InputEvent{0, kEvSyn, kSynDropped, 0})},
                                               {1, rc::gen::just(InputEvent{0, kEvMsc, kMscTimestamp, 9})}});
}

rc::Gen<Step> steps(bool surroundingsChange) {
    auto event = rc::gen::map(barEvents(), [](const InputEvent &each) {
        return Step{Step::Kind::Event, each, 0};
    });
    if (!surroundingsChange) {
        return event;
    }
    const auto around = rc::gen::map(
        rc::gen::pair(rc::gen::element(Step::Kind::Modifiers, Step::Kind::Setting, Step::Kind::PauseFlags,
                                       Step::Kind::Trust, Step::Kind::RunLoop),
                      rc::gen::inRange<std::uint32_t>(0, 64)),
        [](const std::pair<Step::Kind, std::uint32_t> &each) {
            return Step{each.first, {}, each.second};
        });
    return rc::gen::weightedOneOf<Step>({{12, event}, {1, around}});
}

/// A session on the one interceptor of this process; each begins with the settings of a fresh start.
class Session {
public:
    Session() {
        static const bool started = [] {
            place();
            registerDefaults(UserDefaults::standard());
            TouchBarInterceptor::subscribeToUserDefaults();
            return true;
        }();
        RC_ASSERT(started);
        place().platform.trust.trusted = true;
        TrustedProcessChecker::checkIsTrusted();
        TouchBarInterceptor::updatePauseFlags(~0U, false);
        UserDefaults::standard().removePersistentDomain();
        hold(0);
    }

    struct Frame {
        int touching;
        bool passed;
    };

    /// A result where the step completes a frame.
    std::optional<Frame> take(const Step &step) {
        if (step.kind != Step::Kind::Event) {
            change(step);
            return std::nullopt;
        }
        const auto frame = _bar.feed(step.event, _held, place().platform.taps);
        if (!frame) {
            return std::nullopt;
        }
        for (const InputEvent &event : frame->sent) {
            _reader.feed(event);
            _sent.push_back(event);
        }
        return Frame{frame->gesture.touchCount(kTouching), frame->passed};
    }

    const Contacts &bar() const { return _bar.contacts(); }

    /// What a program that reads the clone believes.
    const Contacts &read() const { return _reader.contacts(); }

    const std::vector<InputEvent> &sent() const { return _sent; }

    static bool blocks() {
        return TouchBarInterceptor::effectivelyEnabled() && place().platform.trust.trusted;
    }

private:
    void change(const Step &step) {
        const bool on = (step.choice & 1U) != 0;
        switch (step.kind) {
        case Step::Kind::Modifiers:
            hold(std::array<ModifierFlags, 4>{0, kFlagFn, kFlagShift | kFlagLeftShift, kFlagCommand}.at(
                step.choice % 4));
            break;
        case Step::Kind::Setting:
            UserDefaults::standard().setObject(
                on, QString::fromLatin1(kSettings.at(step.choice / 2 % kSettings.size())));
            break;
        case Step::Kind::PauseFlags:
            TouchBarInterceptor::updatePauseFlags(1 + step.choice / 2 % 3, on);
            break;
        case Step::Kind::Trust:
            place().platform.trust.trusted = on;
            TrustedProcessChecker::checkIsTrusted();
            break;
        case Step::Kind::RunLoop:
        case Step::Kind::Event:
            place().loop.runPending();
            break;
        }
    }

    void hold(ModifierFlags flags) {
        _held = place().platform.modifiers.flags = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        place().platform.taps.deliver(event);
    }

    DeviceDescription _description = palmBar();
    replay::FilteredBar _bar{_description};
    TouchReader _reader{_description};
    std::vector<InputEvent> _sent;
    ModifierFlags _held = 0;
};

bool sameContacts(const Contacts &left, const Contacts &right) {
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        const Slot one = slotAt(left, i);
        const Slot other = slotAt(right, i);
        if (one.trackingId != other.trackingId || (one.trackingId >= 0 && one != other)) {
            return false;
        }
    }
    return true;
}

} // namespace

TEST(InvariantsTest, WhileBlockingIsInForceNothingTouchingPassesAndElseEverythingDoes) {
    ASSERT_TRUE(rc::check([] {
        Session session;
        for (const Step &step : *rc::gen::container<std::vector<Step>>(steps(true))) {
            if (const auto frame = session.take(step)) {
                RC_ASSERT(frame->passed == !(Session::blocks() && frame->touching > 0));
            }
        }
    }));
}

TEST(InvariantsTest, AfterAFrameThatPassedTheCloneIsWhatTheBarIs) {
    ASSERT_TRUE(rc::check([] {
        Session session;
        for (const Step &step : *rc::gen::container<std::vector<Step>>(steps(true))) {
            const auto frame = session.take(step);
            if (frame && frame->passed) {
                RC_ASSERT(sameContacts(session.read(), session.bar()));
            }
        }
    }));
}

TEST(InvariantsTest, WithTheBarFreeOfFingersTheOutputIsFreeOfFingers) {
    ASSERT_TRUE(rc::check([] {
        Session session;
        for (const Step &step : *rc::gen::container<std::vector<Step>>(steps(true))) {
            if (session.take(step) && !anyContact(session.bar())) {
                RC_ASSERT(!anyContact(session.read()));
            }
        }
    }));
}

TEST(InvariantsTest, NoFingerIsOnTheOutputThatIsNotOnTheBar) {
    ASSERT_TRUE(rc::check([] {
        Session session;
        for (const Step &step : *rc::gen::container<std::vector<Step>>(steps(true))) {
            if (!session.take(step)) {
                continue;
            }
            for (std::size_t i = 0; i < session.read().size(); ++i) {
                const std::int32_t id = session.read()[i].trackingId;
                RC_ASSERT(id < 0 || id == slotAt(session.bar(), i).trackingId);
            }
        }
    }));
}

TEST(InvariantsTest, WhileBlockingIsOffOutputEqualsInput) {
    ASSERT_TRUE(rc::check([] {
        Session session;
        UserDefaults::standard().setObject(false, QStringLiteral("Enabled"));
        for (const Step &step : *rc::gen::container<std::vector<Step>>(steps(false))) {
            if (session.take(step)) {
                RC_ASSERT(sameContacts(session.read(), session.bar()));
            }
        }
    }));
}

TEST(InvariantsTest, TheSameStreamInAnyChunkingGivesTheSameOutput) {
    ASSERT_TRUE(rc::check([] {
        const auto stream = *rc::gen::container<std::vector<Step>>(steps(true));
        const auto chunks =
            *rc::gen::container<std::vector<std::uint8_t>>(rc::gen::inRange<std::uint8_t>(1, 20));
        Session whole;
        for (const Step &step : stream) {
            whole.take(step);
        }
        Session chunked;
        std::size_t left = 0;
        std::size_t chunk = 0;
        for (const Step &step : stream) {
            if (left == 0 && !chunks.empty()) {
                place().loop.runPending(); // as between two reads of a device
                left = chunks[chunk++ % chunks.size()];
            }
            left -= left > 0 ? 1 : 0;
            chunked.take(step);
        }
        RC_ASSERT(whole.sent() == chunked.sent());
    }));
}

} // namespace barquell::test
