#pragma once

#include "evdev/Contacts.h"
#include "evdev/InputEvent.h"
#include "platform/linux/protocol/Protocol.h"

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What the tap server's rules need of the world. The kernel stands behind these interfaces in the program
/// and a script in the tests; the rules themselves make no system call and never ask for the time. Rules and
/// ports belong to one thread, the server's loop, unless something else is said.
namespace barquell::tapd {

/// CLOCK_MONOTONIC.
using Time = std::chrono::steady_clock::time_point;

/// One line a failure or a change of state.
class Log {
public:
    virtual void line(std::string_view text) = 0;

protected:
    Log() = default;
    Log(const Log &) = default;
    Log &operator=(const Log &) = default;
    ~Log() = default;
};

/// A client's connection.
class ClientLink {
public:
    /// False where the client has left so much unread that there is no room for more. Never waits.
    virtual bool send(const protocol::ServerMessage &message) = 0;

    /// The client is done with; it is not to be named to the server again.
    virtual void close() = 0;

    /// Who it is, for the log.
    virtual const std::string &name() const = 0;

    /// Whose it is.
    virtual std::uint32_t user() const = 0;

    /// The process that connected.
    virtual std::int32_t process() const = 0;

protected:
    ClientLink() = default;
    ClientLink(const ClientLink &) = default;
    ClientLink &operator=(const ClientLink &) = default;
    ~ClientLink() = default;
};

/// What a bar holds at the moment, asked and not followed.
struct BarState {
    evdev::Contacts contacts;
    std::int32_t slot = 0;
    bool eventsWaited = false; ///< and were forgotten
};

/// A bar's node, and the place where its clone is made.
class BarPort {
public:
    /// Forgets the events that wait to be read, and asks. Nothing where the bar is gone.
    virtual std::optional<BarState> state() = 0;

    /// False where somebody else has grabbed it, or it is gone.
    virtual bool grab() = 0;
    virtual void ungrab() = 0;

    /// False where the kernel refuses.
    virtual bool createClone() = 0;
    /// What it was sent still reaches its readers.
    virtual void destroyClone() = 0;

    /// False where the clone is of no use any more.
    virtual bool sendToClone(std::span<const evdev::InputEvent> events) = 0;

protected:
    BarPort() = default;
    BarPort(const BarPort &) = default;
    BarPort &operator=(const BarPort &) = default;
    ~BarPort() = default;
};

} // namespace barquell::tapd
