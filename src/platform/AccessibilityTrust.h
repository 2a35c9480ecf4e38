#pragma once

namespace barquell {

/// May this process filter events?
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    /// Asked often and never cached by the back end; it must not wait. Main thread only.
    /// macOS: AXIsProcessTrusted.
    virtual bool isProcessTrusted() const = 0;

    /// Whether the system has a page of its own where trust is given; where it has none, our authorization
    /// window stands in for it.
    virtual bool hasPrivacyPage() const = 0;

protected:
    AccessibilityTrust() = default;
    AccessibilityTrust(const AccessibilityTrust &) = default;
    AccessibilityTrust &operator=(const AccessibilityTrust &) = default;
};

} // namespace barquell
