#include "platform/linux/tapd/core/GrantDesk.h"

#include <algorithm>

namespace barquell::tapd {

using protocol::Refusal;
using protocol::ServerMessageType;

namespace {

GrantDesk::Reply refused(Refusal reason, std::string_view why) {
    return {ServerMessageType::Refused, reason, why, false};
}

} // namespace

std::optional<GrantDesk::Reply> GrantDesk::request(const Client &client, Time now) {
    if (isGranted(client)) {
        return Reply{ServerMessageType::Granted, {}, "asked for the grant that its user has", false};
    }
    if (!hasRoomFor(client)) {
        return refused(Refusal::Busy, "refused a question, enough are out");
    }
    if (!_grants.canGive(client.user())) {
        return refused(Refusal::Failed, "refused a question, its user has no name");
    }
    if (!_authority.ask(client.link())) {
        return noAnswer();
    }
    _questions.push_back({&client.link(), now + std::chrono::microseconds(protocol::kQuestionLimit)});
    return std::nullopt;
}

bool GrantDesk::hasRoomFor(const Client &client) const {
    return _questions.size() < kMaximumQuestions &&
           std::none_of(_questions.begin(), _questions.end(), [&client](const Question &question) {
               return question.link->user() == client.user();
           });
}

GrantDesk::Reply GrantDesk::withdraw(const Client &client) {
    const bool was = read(client).state != grant::State::None;
    if (const std::string problem = _grants.withdraw(client.user()); !problem.empty()) {
        _log.line("cannot withdraw a grant: " + problem);
        return refused(Refusal::Failed, "the grant stays");
    }
    if (was) {
        _log.line(client.link().name() + ": gave its user's grant up");
    }
    return {ServerMessageType::Withdrawn, {}, {}, was};
}

GrantDesk::Reply GrantDesk::answered(const Client &client, Answer answer) {
    switch (answer) {
    case Answer::Yes:
        break;
    case Answer::No:
        return refused(Refusal::Denied, "the grant was denied");
    case Answer::None:
        return noAnswer();
    }
    if (const std::string problem = _grants.give(client.user()); !problem.empty()) {
        _log.line("cannot give a grant: " + problem);
        return refused(Refusal::Failed, "the grant was not given");
    }
    _log.line(client.link().name() + ": its user was granted to filter");
    return {ServerMessageType::Granted, {}, {}, false};
}

GrantDesk::Reply GrantDesk::noAnswer() {
    return refused(Refusal::NoAnswer, "nobody answers whether it may have a grant");
}

bool GrantDesk::isAsked(const ClientLink &link) const {
    return std::any_of(_questions.begin(), _questions.end(),
                       [&link](const Question &question) { return question.link == &link; });
}

const ClientLink *GrantDesk::late(Time now) const {
    const auto limit = deadline();
    return limit && now >= *limit ? _questions.front().link : nullptr;
}

void GrantDesk::forget(const ClientLink &link) {
    if (std::erase_if(_questions, [&link](const Question &question) { return question.link == &link; }) !=
        0) {
        _authority.forget(link);
    }
}

std::optional<Time> GrantDesk::deadline() const {
    return _questions.empty() ? std::nullopt : std::optional(_questions.front().deadline);
}

} // namespace barquell::tapd
