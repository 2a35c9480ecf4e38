#pragma once

#include "platform/linux/tapd/core/Bars.h"
#include "platform/linux/tapd/core/GrantDesk.h"
#include "platform/linux/tapd/core/Keyboards.h"
#include "platform/linux/tapd/core/Taps.h"
#include "platform/linux/tapd/core/ToldOnce.h"

#include <algorithm>

namespace barquell::tapd {

/// The rules of the tap server: who may filter, whose tap acts, what happens to each frame, when bars are
/// held. It is told of everything that happens, with the time, and acts through the ports; it makes no system
/// call. One thread.
///
/// What a wake-up brings is to be told in this order: who is in front, keyboards, clients, bars, the time.
class TapServer {
public:
    static constexpr std::size_t kMaximumClients = 16;       // beyond them only the user in front finds room
    static constexpr std::size_t kMaximumClientsOfAUser = 4; // or one would leave the others no room
    static constexpr std::chrono::seconds kIdleLimit{30};

    TapServer(GrantPort &grants, AuthorityPort &authority, Log &log)
        : _log(log), _desk(grants, authority, log), _taps(_state), _bars(_taps, log) {}

    /// The link may be closed at once. It stays the caller's and lives until it is closed or disconnected.
    void connected(ClientLink &link, Time now);
    void received(ClientLink &link, std::span<const std::byte> packet, Time now);
    /// There is room again for what the client is owed.
    void writable(ClientLink &link);
    void disconnected(ClientLink &link, Time now);
    bool owes(const ClientLink &link) const;

    /// The answer to what the authority was asked; ignored where nobody waits for it.
    void answered(const ClientLink &link, Answer answer, Time now);
    /// Somebody gave or withdrew grants.
    void grantsChanged(Time now);
    /// Until the first time everybody is in front.
    void frontChanged(const Front &front, Time now);

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

    /// From now on it is done once it has had no client for kIdleLimit.
    void endWhenIdle(Time now);
    bool isDone(Time now) const;

    /// When advance() is to be called, at the latest.
    std::optional<Time> deadline() const;
    void advance(Time now);

private:
    using Clients = std::vector<std::unique_ptr<Client>>;

    Clients::iterator find(const ClientLink &link);
    void handle(Client &client, const protocol::ClientMessage &message, Time now);
    void handleFirst(Client &client, protocol::ClientMessageType word, Time now);
    void welcome(Client &client, Time now);
    bool handleTap(Client &client, const protocol::ClientMessage &message, Time now);
    void createTap(Client &client, EventMask mask, Time now);
    void closeTap(const Client &client, Time now);
    void reply(Client &client, const GrantDesk::Reply &reply, Time now);
    bool hasRoomFor(const ClientLink &link) const;
    void tell(const ClientLink &link, std::string_view what);
    void refuse(Client &client, protocol::Refusal reason, std::string_view why, Time now);
    void drop(Client &client, std::string_view why, Time now);
    void forget(Clients::iterator client, Time now);
    /// The action lets the client go, so that the condition holds for one less.
    template <typename Condition, typename Action>
    void forEachThat(const Condition &condition, const Action &action) {
        const auto next = [&] {
            return std::find_if(_clients.begin(), _clients.end(),
                                [&condition](const auto &client) { return condition(*client); });
        };
        for (auto client = next(); client != _clients.end(); client = next()) {
            action(**client);
        }
    }
    std::optional<Time> idleDeadline() const;
    void updateWanted(Time now);
    void publish();

    Log &_log;
    ToldOnce _told;
    PublicState _state;
    Front _front = Front::everybody();
    GrantDesk _desk;
    Clients _clients;
    Keyboards _keyboards;
    Taps _taps;
    Bars _bars;
    std::optional<Time> _lingerUntil; // bars are held so long after the end of a tap
    std::optional<Time> _idleSince;   // without clients, where that is to end
    bool _endsWhenIdle = false;
};

} // namespace barquell::tapd
