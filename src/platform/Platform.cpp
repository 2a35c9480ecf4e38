#include "platform/Platform.h"

namespace barquell {

namespace {

Platform &installed() {
    static Platform platform;
    return platform;
}

} // namespace

void installPlatform(const Platform &platform) {
    installed() = platform;
}

const Platform &platform() {
    return installed();
}

} // namespace barquell
