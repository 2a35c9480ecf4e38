#pragma once

#include "platform/linux/tapd/core/Client.h"

#include <vector>

namespace barquell::tapd {

/// What clients wish of their users' grants, and the questions to the person that follow from it. One thread.
class GrantDesk {
public:
    static constexpr std::size_t kMaximumQuestions = 4; // of all users, one each

    GrantDesk(GrantPort &grants, AuthorityPort &authority, Log &log)
        : _grants(grants), _authority(authority), _log(log) {}

    /// What a client is told in the end.
    struct Reply {
        protocol::ServerMessageType type{};
        protocol::Refusal reason{}; ///< where it is refused
        std::string_view why{};     ///< a literal for the log
        bool endsGrant = false;     ///< there was one until now
    };

    grant::Reading read(const Client &client) { return _grants.read(client.user()); }
    bool isGranted(const Client &client) { return read(client).state == grant::State::Held; }

    /// The reply, unless the person is asked first.
    std::optional<Reply> request(const Client &client, Time now);
    Reply withdraw(const Client &client);

    /// The person's answer was heard, on a question that is out.
    Reply answered(const Client &client, Answer answer);
    bool isAsked(const ClientLink &link) const;

    /// The client of a question that nobody has answered in time; nullptr where there is none.
    const ClientLink *late(Time now) const;
    static Reply noAnswer();

    /// The client goes, and with it its question.
    void forget(const ClientLink &link);

    std::optional<Time> deadline() const;

private:
    struct Question {
        const ClientLink *link = nullptr;
        Time deadline;
    };

    bool hasRoomFor(const Client &client) const;

    GrantPort &_grants;
    AuthorityPort &_authority;
    Log &_log;
    std::vector<Question> _questions; // oldest first
};

} // namespace barquell::tapd
