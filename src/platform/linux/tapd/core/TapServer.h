#pragma once

#include "platform/linux/tapd/core/Client.h"
#include "platform/linux/tapd/core/Keyboards.h"
#include "platform/linux/tapd/core/Tap.h"
#include "platform/linux/tapd/core/ToldOnce.h"

#include <memory>

namespace barquell::tapd {

/// The rules of the tap server: who has the tap, what happens to each frame, when bars are held. It is told
/// of everything that happens, with the time, and acts through the ports; it makes no system call. One
/// thread.
///
/// What a wake-up brings is to be told in this order: keyboards, clients, bars, the time.
class TapServer {
public:
    static constexpr std::size_t kMaximumClients = 16;
    static constexpr std::size_t kMaximumClientsOfAUser = 4; // or one would leave the others no room
    static constexpr std::size_t kMaximumBars = 4;

    explicit TapServer(Log &log) : _log(log), _tap(_state) {}

    /// The link may be closed at once. It stays the caller's and lives until it is closed or disconnected.
    void connected(ClientLink &link, Time now);
    void received(ClientLink &link, std::span<const std::byte> packet, Time now);
    /// There is room again for what the client is owed.
    void writable(ClientLink &link);
    void disconnected(ClientLink &link, Time now);
    bool owes(const ClientLink &link) const;

    /// A device that isTouchBar(). False where there are too many; the port is then not kept.
    bool barAdded(const evdev::DeviceDescription &bar, BarPort &port, Time now);
    void barRead(BarPort &port, std::span<const evdev::InputEvent> events, Time now);
    void barRemoved(BarPort &port);
    void cloneAppeared(BarPort &port, Time now);
    /// Are the bar's events to be read now?
    bool reads(const BarPort &port) const;

    /// What the keyboard holds down when it comes is told by keyboardRead().
    void keyboardAdded(int keyboard) { _keyboards.add(keyboard); }
    void keyboardRead(int keyboard, std::span<const evdev::InputEvent> events);
    void keyboardRemoved(int keyboard);

    /// When advance() is to be called, at the latest.
    std::optional<Time> deadline() const;
    void advance(Time now);

private:
    using Clients = std::vector<std::unique_ptr<Client>>;

    Clients::iterator find(const ClientLink &link);
    BarRelay *relayOf(const BarPort &port) const;
    void handle(Client &client, const protocol::ClientMessage &message, Time now);
    bool handleTap(Client &client, const protocol::ClientMessage &message, Time now);
    void createTap(Client &client, EventMask mask, Time now);
    void closeTap(Time now);
    bool hasRoomFor(const ClientLink &link) const;
    void tell(const ClientLink &link, std::string_view what);
    void refuse(Client &client, protocol::Refusal reason, std::string_view why, Time now);
    void drop(Client &client, std::string_view why, Time now);
    void forget(Clients::iterator client, Time now);
    void updateWanted(Time now);
    void publish();

    Log &_log;
    ToldOnce _told;
    PublicState _state;
    Clients _clients;
    Keyboards _keyboards;
    Tap _tap;
    std::vector<std::unique_ptr<BarRelay>> _bars;
    std::optional<Time> _lingerUntil; // bars are held so long after the end of a tap
};

} // namespace barquell::tapd
