#pragma once

#include "blocking/TouchBarInterceptor.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <vector>

namespace barquell::test {

/// The interceptor on a scripted place, with the program's own defaults; each test runs in a process of its
/// own.
class InterceptorFixture : public testing::Test {
protected:
    InterceptorFixture() {
        here.loop.runPending();
        UserDefaults::standard().registerDefaults({{QStringLiteral("Enabled"), true},
                                                   {QStringLiteral("PauseKeyAllowed"), true},
                                                   {QStringLiteral("PauseKeyFn"), true},
                                                   {QStringLiteral("ClearPauseKeys"), true}});
        NotificationCenter::defaultCenter().addObserver(
            _observer, QStringLiteral("com.vexolith.barquell.touch-bar-state-changed"),
            [this](const Notification &notification) {
                EXPECT_EQ(notification.object, nullptr);
                EXPECT_EQ(notification.userInfo.size(), 1);
                sources.push_back(notification.userInfo.value(QStringLiteral("source")).toInt());
                states.push_back(TouchBarInterceptor::effectivelyEnabled());
                linesBefore.push_back(log.lines.size());
            });
    }

    static void set(const char *key, const QVariant &value) {
        UserDefaults::standard().setObject(value, QString::fromLatin1(key));
    }

    void start() {
        TouchBarInterceptor::subscribeToUserDefaults();
        forget();
    }

    /// What has happened so far is of no interest.
    void forget() {
        sources.clear();
        states.clear();
        linesBefore.clear();
        taps.journal.clear();
        log.lines.clear();
    }

    bool touchPasses(ModifierFlags flags = 0, TouchPhases phase = kTouchBegan) {
        ScriptedEvent event(EventType::Gesture, flags);
        event.touch(phase);
        return taps.deliver(event);
    }

    void hold(ModifierFlags flags) {
        here.platform.modifiers.flags = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        EXPECT_TRUE(taps.deliver(event));
    }

    Place &here = place();
    ScriptedEventTaps &taps = here.platform.taps;
    std::vector<int> sources;           ///< of the state notifications
    std::vector<bool> states;           ///< as who hears one reads it
    std::vector<qsizetype> linesBefore; ///< how many lines had been logged before each
    LogCapture log;

private:
    QObject _observer;
};

} // namespace barquell::test
