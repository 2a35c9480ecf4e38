#include "platform/linux/tapd/core/ToldOnce.h"

#include <algorithm>

namespace barquell::tapd {

bool ToldOnce::isNews(std::uint32_t user, std::string_view reason) {
    const bool wasTold = std::any_of(_entries.begin(), _entries.end(), [&](const Entry &entry) {
        return entry.user == user && entry.reason == reason;
    });
    if (!wasTold) {
        _entries.at(_next) = {user, reason};
        _next = (_next + 1) % kRoom;
    }
    return !wasTold;
}

void ToldOnce::forget(std::uint32_t user) {
    for (Entry &entry : _entries) {
        entry = entry.user == user ? Entry() : entry;
    }
}

void ToldOnce::forget(std::string_view reason) {
    for (Entry &entry : _entries) {
        entry = entry.reason == reason ? Entry() : entry;
    }
}

} // namespace barquell::tapd
