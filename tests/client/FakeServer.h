#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/protocol/Protocol.h"
#include "support/Wait.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

#include <cstring>
#include <optional>

namespace barquell::test {

/// The server's end of the protocol on a real socket, moved by the test.
class FakeServer {
public:
    FakeServer() { listen(); }

    QString path() const { return _folder.filePath(QStringLiteral("tap.sock")); }

    void listen() {
        QFile::remove(path());
        _listening = FileDescriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray name = path().toLocal8Bit();
        std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        EXPECT_EQ(::bind(_listening.get(), reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(_listening.get(), 4), 0);
    }

    /// As when the process is killed: the socket file stays.
    void die() {
        _client = FileDescriptor();
        _listening = FileDescriptor();
    }

    /// Ends the connection of the client.
    void hangUp() { _client = FileDescriptor(); }

    /// Is a client waiting to be accepted?
    bool isCalled() {
        _client = FileDescriptor(::accept4(_listening.get(), nullptr, nullptr, SOCK_NONBLOCK));
        return _client.isValid();
    }

    bool accept() {
        return waitFor([this] {
            _client = FileDescriptor(::accept4(_listening.get(), nullptr, nullptr, SOCK_NONBLOCK));
            return _client.isValid();
        });
    }

    void send(const protocol::ServerMessage &message) { sendBytes(&message, sizeof message); }

    void sendBytes(const void *bytes, std::size_t size) {
        EXPECT_EQ(::send(_client.get(), bytes, size, MSG_NOSIGNAL), static_cast<ssize_t>(size));
    }

    /// The next message of the client, waited for.
    protocol::ClientMessage next() {
        std::optional<protocol::ClientMessage> message;
        EXPECT_TRUE(waitFor([&] { return (message = received()).has_value(); })) << "the client says nothing";
        return message.value_or(protocol::ClientMessage{});
    }

    /// What the client has said already.
    std::optional<protocol::ClientMessage> received() {
        protocol::ClientMessage message;
        const ssize_t size = ::recv(_client.get(), &message, sizeof message, MSG_DONTWAIT);
        return size == sizeof message ? std::optional(message) : std::nullopt;
    }

    /// Says nothing more, but still sees its client go.
    void fallSilent() { ::shutdown(_client.get(), SHUT_WR); }

    /// Has the client gone? What it said before is taken away.
    bool isLeft() {
        char byte = 0;
        return ::recv(_client.get(), &byte, 1, MSG_DONTWAIT) == 0;
    }

    bool clientHasGone() {
        return waitFor([this] { return isLeft(); });
    }

    void welcome(ModifierFlags flags = 0) {
        send({.type = protocol::ServerMessageType::Welcome, .version = protocol::kVersion, .flags = flags});
    }

private:
    QTemporaryDir _folder;
    FileDescriptor _listening;
    FileDescriptor _client;
};

} // namespace barquell::test
