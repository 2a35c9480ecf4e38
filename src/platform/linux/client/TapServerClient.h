#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/EventTap.h"
#include "platform/ModifierState.h"
#include "platform/linux/client/GrantClient.h"
#include "platform/linux/client/TapConnection.h"

#include <QFileSystemWatcher>
#include <QStringList>

#include <cstdint>

namespace barquell {

/// The taps and the modifier keys of this place, both from the tap server. A tap outlives the server: when
/// that is back the tap is installed again as it was last asked to be, and until then touches pass. A server
/// that is away is tried again after 5 s, then less and less; one of another version, as one that has been
/// away for long, every 5 min, since the socket may stay when its service is exchanged. One tap at a time.
/// Main thread only.
class TapServerClient final : public EventTaps, public ModifierState {
public:
    /// Both must outlive this.
    TapServerClient(QString socketPath, const AccessibilityTrust &trust, GrantClient &grant);
    ~TapServerClient() override;
    Q_DISABLE_COPY_MOVE(TapServerClient)

    /// Refused while there is a tap already, and to whom is not trusted: then the grant is asked for.
    std::unique_ptr<EventTap> create(EventMask mask, EventTapCallback callback) override;

    /// Other devices' events do not come this way.
    bool canChangeFlags() const override { return false; }

    /// Known while connected, that is while there is or was a tap; 0 before.
    ModifierFlags currentFlags() const override { return _flags; }

private:
    class Tap;
    class Source;

    /// The tap that the server has for us.
    enum class Remote { None, Asked, Installed };

    void connect();
    void askForTap();
    void tryAgainLater();
    void complain(const QString &line);
    void complainOfSilence(const QString &line);
    void serverWentAway();
    void handle(const protocol::ServerMessage &message);
    void handleTapCreated();
    void handleRefusal(const protocol::ServerMessage &message);
    void handleFrame(const protocol::ServerMessage &message);
    void handleFlags(ModifierFlags flags);
    void send(const protocol::ClientMessage &message);

    const QString _socketPath;
    const AccessibilityTrust &_trust;
    GrantClient &_grant;
    std::unique_ptr<TapConnection> _connection;
    Tap *_tap = nullptr; // takes itself out
    Remote _remote = Remote::None;
    std::uint64_t _made = 0;  // taps so far
    std::uint64_t _asked = 0; // which of them the server was last asked for
    ModifierFlags _flags = 0;
    QFileSystemWatcher _watcher; // the server's folder: a new server makes a new socket
    bool _tryingAgain = false;
    std::chrono::seconds _pause; // before the next try
    QStringList _complaints;     // each a line until all is well again
    std::shared_ptr<char> _alive;
};

} // namespace barquell
