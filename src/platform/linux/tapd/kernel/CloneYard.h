#pragma once

#include "platform/linux/tapd/core/Ports.h"
#include "platform/linux/tapd/kernel/UinputDevice.h"

#include <vector>

namespace barquell::tapd {

/// Where clones spend their last moments. The kernel gives a reader nothing more of a device that is gone,
/// not even what waited to be read (drivers/input/evdev.c, evdev_read), so the end of a last touch needs the
/// device to stay for a little. One thread.
class CloneYard {
public:
    static constexpr std::chrono::milliseconds kStay{250};

    void retire(UinputDevice clone, Time now) { _clones.push_back({std::move(clone), now + kStay}); }

    std::optional<Time> deadline() const {
        return _clones.empty() ? std::nullopt : std::optional(_clones.front().until);
    }
    void advance(Time now) {
        std::erase_if(_clones, [now](const Retired &retired) { return retired.until <= now; });
    }

private:
    struct Retired {
        UinputDevice clone;
        Time until;
    };

    std::vector<Retired> _clones; // the first to go first
};

} // namespace barquell::tapd
