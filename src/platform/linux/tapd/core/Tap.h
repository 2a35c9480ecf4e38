#pragma once

#include "platform/linux/tapd/core/Client.h"
#include "platform/linux/tapd/core/FrameQueue.h"

namespace barquell::tapd {

/// The tap: at most one client's. Frames of all bars stand in one line, so verdicts come in the order of the
/// frames; all of them are out at once, since a frame that waits for the one before it would wait for
/// nothing. One thread.
class Tap final : public FrameSink {
public:
    explicit Tap(const PublicState &state) : _state(state) {}

    bool isOpen() const { return _owner != nullptr; }
    bool isOpenFor(const Client &client) const { return _owner == &client; }
    /// What the client may know of who has it.
    std::int32_t holderFor(const Client &asking) const {
        return _owner ? _owner->processFor(asking) : protocol::kNobody;
    }
    bool wantsBars() const { return isOpen() && (_mask & maskOf(EventType::Gesture)) != 0; }

    void open(Client &owner, EventMask mask);

    /// Frames that are out pass.
    void close();

    /// When disabled, frames that are out pass.
    void setEnabled(bool enabled);

    /// False where it is not the frame's turn.
    bool judge(std::uint64_t frame, bool pass);

    /// Is no verdict awaited on the frame any more, though there was such a frame?
    bool isPast(std::uint64_t frame) const;

    void frame(BarRelay &bar, const BarFrame &frame, Time now) override;

    /// The bar is about to go.
    void forget(const BarRelay &bar) { _queue.forget(bar); }

    /// The bars are then not to be read: what they report waits in the kernel.
    bool isCrowded() const { return _queue.isCrowded(); }

    std::optional<Time> deadline() const;
    /// Disables the tap where its client took too long; true where that just happened.
    bool advance(Time now);

private:
    protocol::ServerMessage messageOf(const BarFrame &frame) const;
    void passAll();
    void disableByTimeout();

    const PublicState &_state;
    Client *_owner = nullptr;
    EventMask _mask = 0;
    bool _enabled = false;
    FrameQueue _queue;
    std::uint64_t _lastNumber = 0; // never starts again, so a late verdict is known as such
};

} // namespace barquell::tapd
