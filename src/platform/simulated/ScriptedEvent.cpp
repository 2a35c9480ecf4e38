#include "platform/simulated/ScriptedEvent.h"

#include <bit>

namespace barquell {

int ScriptedEvent::touchCount(TouchPhases phases) const {
    int count = 0;
    for (std::size_t i = 0; i < touchesByPhase.size(); ++i) {
        count += (phases >> i & 1U) != 0 ? touchesByPhase.at(i) : 0;
    }
    return count;
}

ScriptedEvent &ScriptedEvent::touch(TouchPhases phase) {
    ++touchesByPhase.at(static_cast<std::size_t>(std::countr_zero(phase)));
    return *this;
}

} // namespace barquell
