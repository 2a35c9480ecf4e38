#include "platform/linux/tapd/core/Bars.h"

#include <algorithm>

namespace barquell::tapd {

bool Bars::add(const evdev::DeviceDescription &bar, BarPort &port, Time now) {
    if (_bars.size() == kMaximum) {
        _log.line(bar.name + ": left alone, there are too many bars");
        return false;
    }
    _bars.push_back(std::make_unique<BarRelay>(bar, port, _sink, _log));
    _log.line(bar.name + ": plugged in");
    _bars.back()->setWanted(_wanted, now);
    return true;
}

void Bars::remove(const BarPort &port) {
    if (const BarRelay *bar = find(port)) {
        _sink.forget(*bar);
        std::erase_if(_bars, [bar](const auto &entry) { return entry.get() == bar; });
    }
}

BarRelay *Bars::find(const BarPort &port) const {
    const auto bar =
        std::find_if(_bars.begin(), _bars.end(), [&](const auto &entry) { return &entry->port() == &port; });
    return bar == _bars.end() ? nullptr : bar->get();
}

void Bars::setWanted(bool wanted, Time now) {
    _wanted = wanted;
    for (const auto &bar : _bars) {
        bar->setWanted(wanted, now);
    }
}

void Bars::retry(Time now) {
    for (const auto &bar : _bars) {
        bar->retry(now);
    }
}

std::uint16_t Bars::grabbed() const {
    return static_cast<std::uint16_t>(
        std::count_if(_bars.begin(), _bars.end(), [](const auto &bar) { return bar->isGrabbed(); }));
}

} // namespace barquell::tapd
