// decision CASE COUNT: sends COUNT events of one kind through the live callback of the interceptor and prints
// how many of them were swallowed and how often memory was allocated meanwhile. `bench/run` counts its
// instructions.

#include "app/RegisteredDefaults.h"
#include "blocking/TouchBarInterceptor.h"
#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "foundation/VirtualRunLoop.h"
#include "platform/simulated/ScriptedPlatform.h"
#include "support/CountedAllocations.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace barquell;

ScriptedEvent eventOf(const char *name) {
    ScriptedEvent event(EventType::Gesture);
    if (std::strcmp(name, "blocked") == 0) {
        return event.touch(kTouchMoved);
    }
    if (std::strcmp(name, "ended") == 0) {
        return event.touch(kTouchEnded);
    }
    if (std::strcmp(name, "paused") == 0) {
        event.modifierFlags = kFlagFn;
        return event.touch(kTouchMoved);
    }
    if (std::strcmp(name, "media-key") == 0) {
        return ScriptedEvent(EventType::SystemDefined, kFlagFn);
    }
    std::fprintf(stderr, "decision: no case '%s'\n", name);
    std::exit(2);
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fputs("usage: decision blocked|ended|paused|media-key COUNT\n", stderr);
        return 2;
    }
    setLogSink([](const QString &) {});
    static VirtualRunLoop loop;
    static ScriptedPlatform platform;
    RunLoop::setMain(&loop);
    platform.install();
    registerDefaults(UserDefaults::standard());
    TouchBarInterceptor::subscribeToUserDefaults();
    const EventTapCallback callback = platform.taps.installedCallback();
    const ScriptedEvent prototype = eventOf(argv[1]);
    ScriptedEvent warmUp = prototype; // a flip of the state, which is announced, happens here
    callback(warmUp.type, &warmUp);

    const long count = std::atol(argv[2]);
    const std::size_t before = test::allocations();
    long swallowed = 0;
    for (long i = 0; i < count; ++i) {
        ScriptedEvent event = prototype;
        swallowed += callback(event.type, &event) == nullptr ? 1 : 0;
    }
    std::printf("%ld swallowed, %zu allocations\n", swallowed, test::allocations() - before);
    return 0;
}
