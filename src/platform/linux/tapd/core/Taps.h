#pragma once

#include "platform/linux/tapd/core/Client.h"
#include "platform/linux/tapd/core/FrameQueue.h"

#include <memory>

namespace barquell::tapd {

/// The taps: at most one a user, of which one acts at most, whose user is in front; the others rest, and
/// frames pass them. Frames of all bars stand in one line, so verdicts come in the order of the frames; all
/// of them are out at once, since a frame that waits for the one before it would wait for nothing. One
/// thread.
class Taps final : public FrameSink {
public:
    explicit Taps(const PublicState &state) : _state(state) {}

    bool isOpenFor(const Client &client) const { return tapOf(client) != nullptr; }
    bool actsFor(const Client &client) const { return _acting && _acting->owner == &client; }
    /// False where the client's user has a tap, or another one's could never act beside it.
    bool isFreeFor(const Client &client) const;
    /// What the client may know of who has its user's tap, or else the one that acts.
    std::int32_t holderFor(const Client &asking) const;
    bool wantsBars() const { return _acting && (_acting->mask & maskOf(EventType::Gesture)) != 0; }

    void open(Client &owner, EventMask mask);

    /// Frames that are out to it pass.
    void close(const Client &owner);

    /// When disabled, frames that are out to it pass.
    void setEnabled(const Client &owner, bool enabled);

    /// Some clients came to the front or went behind: another tap may act now, or none. Frames that are out
    /// to one that begins to rest pass.
    void choose();

    /// False where it is not the frame's turn, or the client's.
    bool judge(const Client &client, std::uint64_t frame, bool pass);

    void frame(BarRelay &bar, const BarFrame &frame, Time now) override;

    /// The bar is about to go.
    void forget(const BarRelay &bar) override { _queue.forget(bar); }

    /// The bars are then not to be read: what they report waits in the kernel.
    bool isCrowded() const { return _queue.isCrowded(); }

    std::optional<Time> deadline() const;
    /// Disables the tap where its client took too long; true where that just happened.
    bool advance(Time now);

private:
    struct Tap {
        Client *owner = nullptr;
        EventMask mask = 0;
        bool enabled = false;
    };

    Tap *tapOf(const Client &client) const;
    bool isPast(const Client &client, std::uint64_t frame) const;
    protocol::ServerMessage messageOf(const BarFrame &frame, std::uint64_t number) const;
    void passAll();
    void disableByTimeout();

    const PublicState &_state;
    std::vector<std::unique_ptr<Tap>> _taps; // in the order of their beginnings
    Tap *_acting = nullptr;
    FrameQueue _queue; // all out to the tap that acts
};

} // namespace barquell::tapd
