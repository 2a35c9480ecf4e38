#include "platform/linux/protocol/Protocol.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

// A client of the tap server for tests: tapclient SOCKET. Standard input says, line by line, what it is to
// do:
//
//     hello        say hello (any other line but raw may follow only then)
//     request      ask for the grant, in place of hello
//     withdraw     give it up, in place of hello
//     create       create a tap for gestures and modifiers
//     destroy      destroy it
//     on, off      enable and disable it
//     block        judge each frame: swallow
//     pass         judge each frame: pass
//     silent       judge no frame
//     raw N        send N bytes that mean nothing
//     say WORD     print WORD
//     stat         print how many frames came since the last stat
//
// It prints what the server says, frames excepted, and ends with the connection or with its input.
namespace {

using namespace barquell;
using namespace barquell::protocol;

enum class Mode { Block, Pass, Silent };

struct State {
    int socket = -1;
    Mode mode = Mode::Pass;
    unsigned long long frames = 0;
    unsigned long long touches = 0;
};

int connectTo(const char *path) {
    const int socket = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    return ::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 ? socket : -1;
}

void send(const State &state, const ClientMessage &message) {
    const auto packet = packetOf(message);
    ::send(state.socket, packet.data(), packet.size(), MSG_NOSIGNAL);
}

void send(const State &state, ClientMessageType type, bool on = false) {
    ClientMessage message;
    message.type = type;
    message.on = on ? 1 : 0;
    send(state, message);
}

/// Hello, or a wish about the grant.
void first(const State &state, ClientMessageType type) {
    ClientMessage message;
    message.type = type;
    message.version = kVersion;
    send(state, message);
}

void create(const State &state) {
    ClientMessage message;
    message.type = ClientMessageType::CreateTap;
    message.eventMask = maskOf(EventType::Gesture) | maskOf(EventType::FlagsChanged);
    send(state, message);
}

void sendNonsense(const State &state, std::size_t size) {
    const std::string bytes(size, '\xa5');
    ::send(state.socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

void obey(State &state, std::string_view line) {
    if (line == "hello") {
        first(state, ClientMessageType::Hello);
    } else if (line == "request" || line == "withdraw") {
        first(state, line == "request" ? ClientMessageType::RequestGrant : ClientMessageType::WithdrawGrant);
    } else if (line == "create") {
        create(state);
    } else if (line == "destroy") {
        send(state, ClientMessageType::DestroyTap);
    } else if (line == "on" || line == "off") {
        send(state, ClientMessageType::SetEnabled, line == "on");
    } else if (line == "block" || line == "pass" || line == "silent") {
        state.mode = line == "block" ? Mode::Block : line == "pass" ? Mode::Pass : Mode::Silent;
    } else if (line.starts_with("raw ")) {
        sendNonsense(state, static_cast<std::size_t>(std::stoul(std::string(line.substr(4)))));
    } else if (line.starts_with("say ")) {
        std::printf("%s\n", std::string(line.substr(4)).c_str());
    } else if (line == "stat") {
        std::printf("frames %llu touches %llu\n", state.frames, state.touches);
        state.frames = state.touches = 0;
    } else {
        std::printf("unknown '%s'\n", std::string(line).c_str());
    }
}

void judge(State &state, const ServerMessage &frame) {
    ++state.frames;
    state.touches += frame.listedTouches;
    if (state.mode == Mode::Silent) {
        return;
    }
    ClientMessage verdict;
    verdict.type = ClientMessageType::Verdict;
    verdict.frame = frame.frame;
    verdict.on = state.mode == Mode::Pass ? 1 : 0;
    send(state, verdict);
}

void hear(State &state, const ServerMessage &message) {
    switch (message.type) {
    case ServerMessageType::Welcome:
        std::printf("welcome flags %llx bars %u/%u%s\n", static_cast<unsigned long long>(message.flags),
                    message.barsGrabbed, message.barsKnown, message.inFront != 0 ? "" : " behind");
        break;
    case ServerMessageType::Refused:
        std::printf("refused %u\n", static_cast<unsigned>(message.reason));
        break;
    case ServerMessageType::TapCreated:
        std::printf("created\n");
        break;
    case ServerMessageType::Frame:
        judge(state, message);
        break;
    case ServerMessageType::FlagsChanged:
        std::printf("flags %llx\n", static_cast<unsigned long long>(message.flags));
        break;
    case ServerMessageType::DisabledByTimeout:
        std::printf("disabled\n");
        break;
    case ServerMessageType::Bars:
        std::printf("bars %u/%u\n", message.barsGrabbed, message.barsKnown);
        break;
    case ServerMessageType::Granted:
        std::printf("granted\n");
        break;
    case ServerMessageType::Withdrawn:
        std::printf("withdrawn\n");
        break;
    }
}

bool readSocket(State &state) {
    std::array<std::byte, sizeof(ServerMessage) + 1> packet;
    const ssize_t size = ::recv(state.socket, packet.data(), packet.size(), 0);
    if (size <= 0) {
        std::printf("closed\n");
        return false;
    }
    const auto message = decodeServerMessage(std::span(packet).first(static_cast<std::size_t>(size)));
    if (!message) {
        std::printf("server talks nonsense\n");
        return false;
    }
    hear(state, *message);
    return true;
}

bool readInput(State &state, std::string &unread) {
    std::array<char, 512> text;
    const ssize_t size = ::read(STDIN_FILENO, text.data(), text.size());
    if (size <= 0) {
        return false;
    }
    unread.append(text.data(), static_cast<std::size_t>(size));
    for (std::size_t end = unread.find('\n'); end != std::string::npos; end = unread.find('\n')) {
        obey(state, unread.substr(0, end));
        unread.erase(0, end + 1);
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    State state;
    state.socket = argc == 2 ? connectTo(argv[1]) : -1;
    if (state.socket < 0) {
        std::printf("no connection: %s\n", std::strerror(errno));
        return 1;
    }
    std::string unread;
    for (;;) {
        std::array<pollfd, 2> ready{{{state.socket, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}}};
        ::poll(ready.data(), ready.size(), -1);
        if (ready[0].revents != 0 && !readSocket(state)) {
            return 0;
        }
        if (ready[1].revents != 0 && !readInput(state, unread)) {
            return 0;
        }
    }
}
