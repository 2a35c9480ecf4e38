#pragma once

#include "evdev/Contacts.h"
#include "evdev/InputEvent.h"
#include "platform/linux/grant/GrantFolder.h"
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

/// Where it is kept who may filter.
class GrantPort {
public:
    virtual grant::Reading read(std::uint32_t user) = 0;

    /// Has the user a name, for a grant to carry?
    virtual bool canGive(std::uint32_t user) = 0;

    /// Why it failed; empty on success.
    virtual std::string give(std::uint32_t user) = 0;
    virtual std::string withdraw(std::uint32_t user) = 0;

protected:
    GrantPort() = default;
    GrantPort(const GrantPort &) = default;
    GrantPort &operator=(const GrantPort &) = default;
    ~GrantPort() = default;
};

/// What the system says to whether a user may have a grant.
enum class Answer {
    Yes,
    No,
    None, ///< it could ask nobody, or is gone
};

/// Who asks the person at the machine.
class AuthorityPort {
public:
    /// Asks about the client's user. False where that cannot be; otherwise the answer comes by
    /// TapServer::answered(), later.
    virtual bool ask(const ClientLink &link) = 0;

    /// The answer is not wanted (any more).
    virtual void forget(const ClientLink &link) = 0;

protected:
    AuthorityPort() = default;
    AuthorityPort(const AuthorityPort &) = default;
    AuthorityPort &operator=(const AuthorityPort &) = default;
    ~AuthorityPort() = default;
};

/// Who is at the machine: a user, nobody, or (where the system does not say) everybody.
class Front {
public:
    static Front everybody() { return Front(true, std::nullopt); }
    static Front nobody() { return Front(false, std::nullopt); }
    static Front of(std::uint32_t user) { return Front(false, user); }

    bool includes(std::uint32_t user) const { return _everybody || _user == user; }
    /// For the log.
    std::string name() const {
        return _everybody ? "everybody" : _user ? "user " + std::to_string(*_user) : "nobody";
    }
    bool operator==(const Front &) const = default;

private:
    Front(bool everybody, std::optional<std::uint32_t> user) : _everybody(everybody), _user(user) {}

    bool _everybody;
    std::optional<std::uint32_t> _user;
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
