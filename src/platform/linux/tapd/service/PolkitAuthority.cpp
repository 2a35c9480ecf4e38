#include "platform/linux/tapd/service/PolkitAuthority.h"

#include <algorithm>

namespace barquell::tapd {

bool PolkitAuthority::ask(const ClientLink &link) {
    auto question = PolkitQuestion::ask(link, _log);
    if (!question || !_poller.add(Source::Authority, question->descriptor())) {
        return false;
    }
    _poller.want(Source::Authority, question->descriptor(), true, true); // so that it goes on by itself
    _questions.emplace(&link, std::move(question));
    return true;
}

std::optional<PolkitAuthority::Answered> PolkitAuthority::proceed(int descriptor) {
    const auto entry = std::find_if(_questions.begin(), _questions.end(), [descriptor](const auto &one) {
        return one.second->descriptor() == descriptor;
    });
    if (entry == _questions.end()) {
        return std::nullopt;
    }
    PolkitQuestion &question = *entry->second;
    if (const auto answer = question.proceed()) {
        return Answered{entry->first, *answer};
    }
    _poller.want(Source::Authority, descriptor, true, question.wantsToWrite());
    return std::nullopt;
}

} // namespace barquell::tapd
