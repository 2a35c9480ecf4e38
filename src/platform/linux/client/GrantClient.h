#pragma once

#include "platform/linux/client/GrantOutcome.h"
#include "platform/linux/client/TapConnection.h"

#include <optional>

namespace barquell {

/// This user's wishes about the grant, told to the tap server on a connection of their own without waiting
/// for it. One at a time. Main thread only.
class GrantClient {
public:
    /// Called from the run loop; it may ask for the next one.
    using Handler = std::function<void(GrantOutcome)>;

    explicit GrantClient(QString socketPath);
    ~GrantClient();
    Q_DISABLE_COPY_MOVE(GrantClient)

    /// Has the system ask the person whether this user may filter, which may take minutes. While that is
    /// under way a second request only takes its handler's place, and during a withdrawal it is nothing. The
    /// outcome is logged in one line.
    void request(Handler onOutcome = {});

    /// Gives the grant up, and takes a request back that is under way. The outcome is logged in one line.
    void withdraw(Handler onOutcome = {});

    bool isUnderWay() const { return _wish.has_value(); }

private:
    void begin(protocol::ClientMessageType wish, Handler onOutcome);
    void end(GrantOutcome outcome);

    const QString _socketPath;
    std::unique_ptr<TapConnection> _connection;
    Handler _onOutcome;
    std::optional<protocol::ClientMessageType> _wish; // that is under way
    std::shared_ptr<char> _alive;                     // of the wish that is under way
};

} // namespace barquell
