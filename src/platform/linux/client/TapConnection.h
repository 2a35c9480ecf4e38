#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/protocol/Protocol.h"

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace barquell {

/// One connection to the tap server, read from the main run loop. It never waits: a server that does not take
/// what it is sent counts as gone. Main thread only.
class TapConnection {
public:
    using MessageHandler = std::function<void(const protocol::ServerMessage &message)>;
    using LossHandler = std::function<void()>;

    /// Connects and says the first word (Hello, or a wish about the grant); nullptr where nobody listens or
    /// we may not speak. The handlers are called later from the run loop; only the one for the loss may
    /// destroy the connection.
    static std::unique_ptr<TapConnection> open(const QString &socketPath, protocol::ClientMessageType first,
                                               MessageHandler onMessage, LossHandler onLoss);

    void send(const protocol::ClientMessage &message);

private:
    TapConnection(FileDescriptor socket, MessageHandler onMessage, LossHandler onLoss);

    void readNext();
    void lose();

    FileDescriptor _socket;
    MessageHandler _onMessage;
    LossHandler _onLoss;
    QSocketNotifier _notifier;
    bool _lost = false;
    std::shared_ptr<char> _alive; // what is scheduled dies with the connection
};

} // namespace barquell
