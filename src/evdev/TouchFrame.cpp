#include "evdev/TouchFrame.h"

#include <algorithm>

namespace barquell::evdev {

int TouchFrame::count(TouchPhases phases) const {
    const auto all = touches();
    return static_cast<int>(std::count_if(all.begin(), all.end(),
                                          [&](const Touch &touch) { return (touch.phase & phases) != 0; }));
}

} // namespace barquell::evdev
