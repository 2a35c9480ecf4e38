#pragma once

#include "platform/linux/FileDescriptor.h"

#include <array>
#include <cstdint>
#include <span>

namespace barquell::tapd {

/// What a descriptor is; of one wake-up the first ones are served first, so that no key goes to a user who
/// has just left the front, and what the keyboards said goes before what the bars said.
enum class Source : std::uint32_t {
    Signals,
    Timer,
    Seat,
    Keyboard,
    Grants,
    Authority,
    Client,
    Bar,
    Listener,
    Devices
};

/// A descriptor with something to be done.
struct Ready {
    Source source{};
    int descriptor = -1;
    bool readable = false; ///< or at its end
    bool writable = false;
};

/// Waits for descriptors (epoll). A descriptor that is closed is forgotten. One thread.
class Poller {
public:
    Poller();

    bool add(Source source, int descriptor) const;
    /// Its end is noticed also where neither is wanted.
    void want(Source source, int descriptor, bool read, bool write) const;

    /// Waits until there is something. Sorted by source; valid until the next call.
    std::span<const Ready> wait();

private:
    FileDescriptor _epoll;
    std::array<Ready, 64> _ready;
};

} // namespace barquell::tapd
