#include "platform/linux/tapd/service/LineLimit.h"

#include <algorithm>
#include <utility>

namespace barquell::tapd {

bool LineLimit::admits(Time now) {
    const auto more = (now - _lastRefill) / kOneMoreAfter;
    if (more > 0) {
        _room = static_cast<int>(std::min<decltype(more)>(kBurst, _room + more));
        _lastRefill = now;
    }
    if (_room == 0) {
        ++_leftOut;
        return false;
    }
    --_room;
    return true;
}

int LineLimit::takeLeftOut() {
    return std::exchange(_leftOut, 0);
}

} // namespace barquell::tapd
