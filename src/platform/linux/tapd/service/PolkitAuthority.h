#pragma once

#include "platform/linux/tapd/service/PolkitQuestion.h"
#include "platform/linux/tapd/service/Poller.h"

#include <map>

namespace barquell::tapd {

/// The questions that are out to polkit. One thread.
class PolkitAuthority final : public AuthorityPort {
public:
    PolkitAuthority(Poller &poller, Log &log) : _poller(poller), _log(log) {}

    bool ask(const ClientLink &link) override;
    void forget(const ClientLink &link) override { _questions.erase(&link); }

    struct Answered {
        const ClientLink *link = nullptr;
        Answer answer{};
    };

    /// Something came on the descriptor of a question. Its answer, once it is there; until it is forgotten.
    std::optional<Answered> proceed(int descriptor);

private:
    Poller &_poller;
    Log &_log;
    std::map<const ClientLink *, std::unique_ptr<PolkitQuestion>> _questions;
};

} // namespace barquell::tapd
