#pragma once

namespace barquell {

/// May this process filter events?
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    /// Asked often and never cached by the back end; it must not wait. Main thread only.
    /// macOS: AXIsProcessTrusted.
    virtual bool isProcessTrusted() const = 0;

    /// Whether there is a page where trust is given and withdrawn, the system's or one of ours.
    virtual bool hasPrivacyPage() const = 0;

protected:
    AccessibilityTrust() = default;
    AccessibilityTrust(const AccessibilityTrust &) = default;
    AccessibilityTrust &operator=(const AccessibilityTrust &) = default;
};

} // namespace barquell
