#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/protocol/Protocol.h"

#include <QByteArray>

#include <optional>

namespace barquell {

/// A connection to the tap server that never waits; invalid where nobody listens.
FileDescriptor connectToServer(const QByteArray &path);

/// False where the server does not take it now or any more.
bool sendToServer(const FileDescriptor &socket, const protocol::ClientMessage &message);

/// What the server said next. Nothing: it has not said anything yet, or (then ended is set) it went away or
/// speaks nonsense.
std::optional<protocol::ServerMessage> receiveFromServer(const FileDescriptor &socket, bool &ended);

} // namespace barquell
