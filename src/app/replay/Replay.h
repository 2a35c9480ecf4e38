#pragma once

#include "app/replay/FilteredBar.h"
#include "app/replay/ReplayListener.h"
#include "evdev/KeyMeaning.h"
#include "foundation/VirtualRunLoop.h"
#include "platform/simulated/ScriptedPlatform.h"
#include "recording/Recording.h"

#include <QObject>

#include <functional>
#include <variant>
#include <vector>

namespace barquell::replay {

/// Where a replay differs from a plain start.
struct ReplaySettings {
    QVariantMap stored; ///< settings by key, as if the user had stored them
    bool trusted = true;
    std::uint32_t pauseFlags = 0; ///< set right after the start
};

/// Hears what a clone of the bar would send.
using EmissionHandler = std::function<void(const std::vector<evdev::InputEvent> &events)>;

/// Leads recorded events through the very interceptor that filters live ones, on a virtual clock and a
/// scripted place. The services behind it belong to the process, so a process replays once, and the place
/// stays until it ends.
class Replay {
public:
    /// The devices' order decides who comes first at equal times, see Timeline. The listener must outlive the
    /// replay.
    Replay(std::vector<recording::RecordedDevice> devices, ReplayListener &listener);

    /// Called for each frame that passes and changes what a clone holds; for recordings with one bar.
    void setEmissionHandler(EmissionHandler handler) { _emit = std::move(handler); }

    void run(const ReplaySettings &settings);

private:
    using Role = std::variant<std::monostate, FilteredBar, evdev::KeyMeaning>;

    static Role roleOf(const evdev::DeviceDescription &device);

    void start(const ReplaySettings &settings);
    void advanceTo(std::int64_t time);
    void feedBar(FilteredBar &bar, const std::string &name, const evdev::InputEvent &event);
    void feedKeyboard(evdev::KeyMeaning &keys, const std::string &name, const evdev::InputEvent &event);
    void report(const ScriptedEvent &event, const std::string &device, bool passed);
    ModifierFlags heldModifiers() const;

    std::vector<recording::RecordedDevice> _devices;
    std::vector<Role> _roles; // one a device
    ReplayListener &_listener;
    EmissionHandler _emit;
    std::int64_t _startTime = 0;
    QObject _observer;
};

} // namespace barquell::replay
