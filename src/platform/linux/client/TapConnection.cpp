#include "platform/linux/client/TapConnection.h"

#include "foundation/RunLoop.h"
#include "platform/linux/client/ServerSocket.h"

namespace barquell {

std::unique_ptr<TapConnection> TapConnection::open(const QString &socketPath,
                                                   protocol::ClientMessageType first,
                                                   MessageHandler onMessage, LossHandler onLoss) {
    FileDescriptor socket = connectToServer(socketPath.toLocal8Bit());
    if (!socket.isValid()) {
        return nullptr;
    }
    std::unique_ptr<TapConnection> connection(
        new TapConnection(std::move(socket), std::move(onMessage), std::move(onLoss)));
    connection->send({.type = first, .version = protocol::kVersion});
    return connection;
}

TapConnection::TapConnection(FileDescriptor socket, MessageHandler onMessage, LossHandler onLoss)
    : _socket(std::move(socket)), _onMessage(std::move(onMessage)), _onLoss(std::move(onLoss)),
      _notifier(_socket.get(), QSocketNotifier::Read), _alive(std::make_shared<char>()) {
    QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier, [this] { readNext(); });
}

void TapConnection::send(const protocol::ClientMessage &message) {
    if (!sendToServer(_socket, message)) {
        lose();
    }
}

// One message a turn: the run loop comes back for the next one, and after the usual single one nothing is
// asked in vain.
void TapConnection::readNext() {
    bool ended = false;
    const auto message = receiveFromServer(_socket, ended);
    if (message) {
        _onMessage(*message); // this may be gone afterwards
    } else if (ended) {
        lose();
    }
}

void TapConnection::lose() {
    if (std::exchange(_lost, true)) {
        return;
    }
    _notifier.setEnabled(false);
    // Later, since whoever is sending still stands in the middle of something. What the server said before it
    // went is heard first.
    RunLoop::main().performAsync([this, alive = std::weak_ptr<char>(_alive), onLoss = _onLoss] {
        bool ended = false;
        while (!alive.expired() && !ended) {
            const auto message = receiveFromServer(_socket, ended);
            if (message) {
                _onMessage(*message);
            }
            ended = ended || !message;
        }
        if (!alive.expired()) {
            onLoss();
        }
    });
}

} // namespace barquell
