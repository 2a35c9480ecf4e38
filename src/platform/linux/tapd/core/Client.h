#pragma once

#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

/// What every client may know.
struct PublicState {
    ModifierFlags flags = 0;
    std::uint16_t barsKnown = 0;
    std::uint16_t barsGrabbed = 0;
};

/// A client as the server keeps it. What it is told are states, so one that does not read is owed each of
/// them once and no more. One thread.
class Client {
public:
    Client(ClientLink &link, Time connected)
        : _link(&link), _helloDeadline(connected + std::chrono::microseconds(protocol::kHelloLimit)) {}

    ClientLink &link() const { return *_link; }
    bool isWelcome() const { return _welcome; }
    Time helloDeadline() const { return _helloDeadline; }

    /// False where the client does not read what it is told.
    bool welcome(const PublicState &state, std::int32_t holder);
    bool tapCreated();
    bool refuse(protocol::Refusal reason);
    bool tell(const protocol::ServerMessage &message) { return _link->send(message); }

    /// What the client may know of the process that has the tap; see protocol::kAnotherUser.
    std::int32_t processFor(const Client &asking) const;

    void owe(bool flags, bool bars) {
        _owesFlags |= flags;
        _owesBars |= bars;
    }
    void oweDisabled() { _owesDisabled = true; }

    /// Tells what is owed, as far as there is room.
    void settle(const PublicState &state);
    bool owes() const { return _owesFlags || _owesBars || _owesDisabled; }

private:
    ClientLink *_link;
    Time _helloDeadline;
    bool _welcome = false;
    bool _owesFlags = false;
    bool _owesBars = false;
    bool _owesDisabled = false;
};

} // namespace barquell::tapd
