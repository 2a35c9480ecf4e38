#pragma once

#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

/// What every client may know, but for the flags: those are for whoever is in front.
struct PublicState {
    ModifierFlags flags = 0;
    std::uint16_t barsKnown = 0;
    std::uint16_t barsGrabbed = 0;
};

/// A client as the server keeps it. What it is told are states, so one that does not read is owed each of
/// them once and no more. One thread.
class Client {
public:
    Client(ClientLink &link, Time connected, bool inFront)
        : _link(&link), _helloDeadline(connected + std::chrono::microseconds(protocol::kHelloLimit)),
          _inFront(inFront) {}

    ClientLink &link() const { return *_link; }
    std::uint32_t user() const { return _link->user(); }
    bool hasSpoken() const { return _stage != Stage::Silent; }
    bool isAsking() const { return _stage == Stage::Asking; }
    bool isWelcome() const { return _stage == Stage::Welcome; }
    bool isInFront() const { return _inFront; }
    Time helloDeadline() const { return _helloDeadline; }

    /// It has said what it wishes of its user's grant.
    void asks() { _stage = Stage::Asking; }

    /// False where the client does not read what it is told.
    bool welcome(const PublicState &state, std::int32_t holder);
    /// A message of nothing but its type.
    bool tell(protocol::ServerMessageType type);
    bool refuse(protocol::Refusal reason);
    bool tell(const protocol::ServerMessage &message) { return _link->send(message); }

    /// What the client may know of the process that has the tap; see protocol::kAnotherUser.
    std::int32_t processFor(const Client &asking) const;

    /// The number of the last frame that it was told of. It counts its own alone, or it would follow how
    /// often others touch; and it never starts again, so a late verdict is known as such.
    std::uint64_t lastFrame() const { return _lastFrame; }
    void setLastFrame(std::uint64_t number) { _lastFrame = number; }

    /// Behind another user it is owed no flags, in front again the current ones.
    void setInFront(bool inFront);

    void owe(bool flags, bool bars) {
        _owesFlags |= flags && _inFront;
        _owesBars |= bars;
    }
    void oweDisabled() { _owesDisabled = true; }

    /// Tells what is owed, as far as there is room.
    void settle(const PublicState &state);
    bool owes() const { return _owesFlags || _owesBars || _owesDisabled; }

private:
    enum class Stage { Silent, Asking, Welcome };

    ClientLink *_link;
    Time _helloDeadline;
    std::uint64_t _lastFrame = 0;
    Stage _stage = Stage::Silent;
    bool _inFront;
    bool _owesFlags = false;
    bool _owesBars = false;
    bool _owesDisabled = false;
};

} // namespace barquell::tapd
