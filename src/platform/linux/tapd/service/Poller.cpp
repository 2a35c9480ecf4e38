#include "platform/linux/tapd/service/Poller.h"

#include <algorithm>
#include <sys/epoll.h>

namespace barquell::tapd {

namespace {

epoll_event eventOf(Source source, int descriptor, std::uint32_t events) {
    epoll_event event{};
    event.events = events;
    event.data.u64 =
        std::uint64_t{static_cast<std::uint32_t>(source)} << 32 | static_cast<std::uint32_t>(descriptor);
    return event;
}

} // namespace

Poller::Poller() : _epoll(::epoll_create1(EPOLL_CLOEXEC)) {}

bool Poller::add(Source source, int descriptor) const {
    epoll_event event = eventOf(source, descriptor, EPOLLIN);
    return ::epoll_ctl(_epoll.get(), EPOLL_CTL_ADD, descriptor, &event) == 0;
}

void Poller::want(Source source, int descriptor, bool read, bool write) const {
    epoll_event event = eventOf(source, descriptor, (read ? EPOLLIN : 0U) | (write ? EPOLLOUT : 0U));
    ::epoll_ctl(_epoll.get(), EPOLL_CTL_MOD, descriptor, &event);
}

std::span<const Ready> Poller::wait() {
    std::array<epoll_event, 64> events;
    const int count = ::epoll_wait(_epoll.get(), events.data(), events.size(), -1);
    const std::size_t size = count < 0 ? 0 : static_cast<std::size_t>(count);
    for (std::size_t i = 0; i < size; ++i) {
        const std::uint64_t data = events.at(i).data.u64;
        _ready.at(i) = {static_cast<Source>(data >> 32), static_cast<int>(data & 0xffffffffU),
                        (events.at(i).events & (EPOLLIN | EPOLLHUP | EPOLLERR)) != 0,
                        (events.at(i).events & EPOLLOUT) != 0};
    }
    const auto ready = std::span(_ready).first(size);
    std::sort(ready.begin(), ready.end(), [](const Ready &a, const Ready &b) { return a.source < b.source; });
    return ready;
}

} // namespace barquell::tapd
