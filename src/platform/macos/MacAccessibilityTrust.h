#pragma once

#include "platform/AccessibilityTrust.h"

namespace barquell {

/// The accessibility permission, as the privacy settings give it.
class MacAccessibilityTrust final : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override;
    bool hasPrivacyPage() const override { return true; }
};

} // namespace barquell
