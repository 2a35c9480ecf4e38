#pragma once

#include "platform/Event.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <type_traits>

/// What the tap server and its clients say to each other: one message a packet, of one fixed size each
/// direction, over a local socket of type SOCK_SEQPACKET, in the machine's own byte order. Fields that a
/// message does not name are 0. The protocol is our own; event types, phases and flags are the numbers of
/// platform/Event.h and platform/ModifierFlags.h.
///
///  1. Within kHelloLimit the client says Hello, RequestGrant or WithdrawGrant, and never again. Hello is
///     answered by Welcome, or by Refused, and the connection is closed: NotGranted where this user has no
///     grant.
///  2. RequestGrant leads to the system's own question to the person, and is answered, after kQuestionLimit
///  at
///     the latest, by Granted, or by Refused: Denied, NoAnswer, Failed, or Busy while the same user or too
///     many users are being asked. A user who has a grant is not asked. Then the connection is closed; a
///     client that closes it before takes the question back. WithdrawGrant is answered by Withdrawn or
///     Refused{Failed}, and the connection is closed.
///  3. A grant that ends closes its user's connections: Refused{NotGranted}.
///  4. From Welcome on the client hears Bars when a count changes, and FlagsChanged when the modifier word
///     changes, whether it has a tap or not; of modifiers it hears only while its user is in front, and the
///     current word when that begins.
///  5. CreateTap is answered by TapCreated, or by Refused{Busy} where a client of the same user (also the
///     client itself) has a tap; the connection stays and the client may try again later. Where no login
///     manager has told of seat0, everybody is in front, and another user's tap is as good a reason.
///     A Welcome says who has the tap, so that a person can be told whom to ask.
///  6. A new tap is disabled. SetEnabled is not answered.
///  7. The tap of the user in front acts: while it is enabled and its mask names EventType::Gesture, each
///     frame of each bar is sent as Frame and waits for its Verdict. Several may be out at a time; verdicts
///     come in the order of the frames. Other users' taps rest, and are told nothing of it.
///  8. A frame without its Verdict kVerdictLimit after it was sent: all frames out pass, the tap is
///     disabled, and DisabledByTimeout is sent. SetEnabled{true} enables it again.
///  9. Frames out when the client disables or destroys its tap, or when the tap begins to rest, pass.
///  Verdicts
///     on them that come late are ignored; numbers never repeat on a connection.
/// 10. DestroyTap is not answered. A client that goes away has destroyed its tap. A CreateTap that follows
///     within kGrabLinger finds the bars still grabbed.
/// 11. A packet that decode refuses, one of rule 1's messages twice, anything before them, a tap's message
///     without a tap (late verdicts excepted), or a verdict out of turn: Refused{Malformed}, and the
///     connection is closed.
/// 12. A client finds room where there are less than 4 of its user and less than 16 in all; the user whose
///     session is in front needs only the first. Any other client is told Refused{Busy} instead of Welcome.
namespace barquell::protocol {

inline constexpr std::uint32_t kVersion = 3;
inline constexpr const char *kDefaultSocket = "/run/barquell/tap.sock";

inline constexpr std::int64_t kVerdictLimit = 1'000'000;    ///< microseconds
inline constexpr std::int64_t kHelloLimit = 5'000'000;      ///< microseconds
inline constexpr std::int64_t kGrabLinger = 200'000;        ///< microseconds
inline constexpr std::int64_t kQuestionLimit = 300'000'000; ///< microseconds

enum class ClientMessageType : std::uint32_t {
    Hello = 1,  ///< version
    CreateTap,  ///< eventMask
    SetEnabled, ///< on
    DestroyTap,
    Verdict,       ///< frame, on: the frame passes
    RequestGrant,  ///< version
    WithdrawGrant, ///< version
};

struct ClientMessage {
    ClientMessageType type{};
    std::uint32_t version = 0;
    std::uint32_t on = 0; ///< 0 or 1
    std::uint32_t zero = 0;
    EventMask eventMask = 0;
    std::uint64_t frame = 0;

    bool operator==(const ClientMessage &) const = default;
};

enum class ServerMessageType : std::uint32_t {
    Welcome = 1, ///< version, barsKnown, barsGrabbed, flags, holder, inFront
    Refused,     ///< reason, version
    TapCreated,
    Frame,        ///< frame, flags, touchCounts, listedTouches, touches
    FlagsChanged, ///< flags
    DisabledByTimeout,
    Bars, ///< barsKnown, barsGrabbed
    Granted,
    Withdrawn,
};

enum class Refusal : std::uint32_t {
    Version = 1, ///< the server speaks the version given beside it; the connection is closed
    Busy,        ///< the tap is taken, or (before Welcome, then the connection is closed) there is no room
    Malformed,   ///< the connection is closed
    NotGranted,  ///< this user may not filter (any more); the connection is closed
    Denied,      ///< a person said no, or the system did without asking
    NoAnswer,    ///< there is nobody to ask, or nobody answered in time
    Failed,      ///< the grant could not be written or removed; the server's log says why
};

/// A finger in a frame; x and y are fractions of the bar's width and height.
struct Touch {
    std::uint32_t phase = 0; ///< exactly one of kTouchBegan … kTouchCancelled
    std::int32_t id = 0;
    float x = 0;
    float y = 0;

    bool operator==(const Touch &) const = default;
};

/// Who has the tap (this user's, or where there is none the one that acts), where it is no process id. A
/// user's clients hear of that user's processes and root's of all; of another user's process nobody hears
/// more than that there is one.
inline constexpr std::int32_t kNobody = 0;
inline constexpr std::int32_t kAnotherUser = -1;

inline constexpr std::size_t kPhases = 5;
inline constexpr std::size_t kListedTouches = 16;

struct ServerMessage {
    ServerMessageType type{};
    std::uint32_t version = 0;
    Refusal reason{};
    std::uint16_t barsKnown = 0;   ///< plugged in
    std::uint16_t barsGrabbed = 0; ///< of those, how many are held for the tap
    ModifierFlags flags = 0;
    std::uint64_t frame = 0;                          ///< from 1, counted for each client
    std::array<std::uint16_t, kPhases> touchCounts{}; ///< of all touches; entry n counts phase 1 << n
    std::uint16_t listedTouches = 0;                  ///< how many of them follow
    std::int32_t holder = kNobody; ///< the process that had the tap when the client was welcomed
    std::uint32_t inFront = 0;     ///< 0 or 1: so was the client's user
    std::uint32_t zero = 0;
    std::array<Touch, kListedTouches> touches{}; ///< the first ones

    bool operator==(const ServerMessage &) const = default;
};

static_assert(sizeof(ClientMessage) == 32 && std::is_trivially_copyable_v<ClientMessage>);
static_assert(sizeof(Touch) == 16 && std::is_trivially_copyable_v<Touch>);
static_assert(sizeof(ServerMessage) == 312 && std::is_trivially_copyable_v<ServerMessage>);
static_assert(std::has_unique_object_representations_v<ClientMessage>, "no padding to leak through");
static_assert(offsetof(ServerMessage, touches) == 56, "no padding to leak through");

/// The message in a packet; nothing where the packet is none. Any thread.
std::optional<ClientMessage> decodeClientMessage(std::span<const std::byte> packet);
std::optional<ServerMessage> decodeServerMessage(std::span<const std::byte> packet);

/// The packet that carries the message. Valid as long as the message.
inline std::span<const std::byte> packetOf(const ClientMessage &message) {
    return std::as_bytes(std::span(&message, 1));
}
inline std::span<const std::byte> packetOf(const ServerMessage &message) {
    return std::as_bytes(std::span(&message, 1));
}

/// How many of a frame's touches are in one of the phases.
int touchCount(const ServerMessage &frame, TouchPhases phases);

} // namespace barquell::protocol
