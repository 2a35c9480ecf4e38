#include "platform/linux/tapd/service/KeptGrants.h"

#include <array>
#include <cstring>
#include <sys/inotify.h>

namespace barquell::tapd {

KeptGrants::KeptGrants(grant::GrantFolder folder)
    : _folder(std::move(folder)), _changes(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

bool KeptGrants::follow() {
    if (_watch >= 0) {
        return false;
    }
    constexpr std::uint32_t kAnyChange = IN_CREATE | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM |
                                         IN_DELETE | IN_ATTRIB | IN_MOVE_SELF | IN_ONLYDIR;
    _watch = ::inotify_add_watch(_changes.get(), _folder.path().c_str(), kAnyChange);
    return _watch >= 0;
}

/// All is looked up anew afterwards, so what matters is only whether the folder itself went.
void KeptGrants::forgetChanges() {
    alignas(inotify_event) std::array<char, 4096> events;
    for (ssize_t size = 0; (size = ::read(_changes.get(), events.data(), events.size())) > 0;) {
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, events.data() + at, sizeof event);
            if ((event.mask & IN_MOVE_SELF) != 0) {
                ::inotify_rm_watch(_changes.get(), _watch);
            } else if ((event.mask & IN_IGNORED) != 0 && event.wd == _watch) {
                _watch = -1;
            }
            at += sizeof event + event.len;
        }
    }
    follow();
}

std::string KeptGrants::give(std::uint32_t user) {
    std::string problem = _folder.give(user);
    follow();
    return problem;
}

} // namespace barquell::tapd
