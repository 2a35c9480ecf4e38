#pragma once

#include "foundation/VirtualRunLoop.h"
#include "platform/simulated/ScriptedPlatform.h"

namespace barquell::test {

/// A scripted place on a virtual clock. It is the process's, as the services under test are.
struct Place {
    Place() {
        RunLoop::setMain(&loop);
        platform.install();
    }
    ~Place() = default;
    Q_DISABLE_COPY_MOVE(Place)

    VirtualRunLoop loop;
    ScriptedPlatform platform;
};

/// Made by the first call, which a test makes before anything else.
inline Place &place() {
    static Place place;
    return place;
}

} // namespace barquell::test
