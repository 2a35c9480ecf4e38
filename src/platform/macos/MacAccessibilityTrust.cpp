#include "platform/macos/MacAccessibilityTrust.h"

#include <ApplicationServices/ApplicationServices.h>

namespace barquell {

bool MacAccessibilityTrust::isProcessTrusted() const {
    return AXIsProcessTrusted();
}

} // namespace barquell
