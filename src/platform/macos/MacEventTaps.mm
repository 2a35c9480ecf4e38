#include "platform/macos/MacEventTaps.h"

#include "platform/macos/CFOwner.h"
#include "platform/macos/CenterObservation.h"
#include "platform/macos/MacEvent.h"

namespace barquell {

namespace {

class MacTapSource final : public EventTapSource {
public:
    explicit MacTapSource(CFRunLoopSourceRef created) : _source(created) {}
    ~MacTapSource() override { CFRunLoopSourceInvalidate(_source.get()); }
    MacTapSource(const MacTapSource &) = delete;
    MacTapSource &operator=(const MacTapSource &) = delete;

    void addToMainRunLoop() override {
        CFRunLoopAddSource(CFRunLoopGetMain(), _source.get(), kCFRunLoopCommonModes);
    }

private:
    CFOwner<CFRunLoopSourceRef> _source;
};

class MacTap final : public EventTap {
public:
    explicit MacTap(EventTapCallback callback) : _callback(callback) {}
    ~MacTap() override;
    MacTap(const MacTap &) = delete;
    MacTap &operator=(const MacTap &) = delete;

    bool open(EventMask mask);
    void setEnabled(bool enabled) override;
    std::unique_ptr<EventTapSource> createRunLoopSource() override;

private:
    static CGEventRef called(CGEventTapProxy proxy, CGEventType type, CGEventRef event, void *tap);

    CGEventRef filter(CGEventType type, CGEventRef event);
    void restore();

    EventTapCallback _callback;
    CFOwner<CFMachPortRef> _port;
    bool _wanted = false; // as it was last asked to be
    std::unique_ptr<CenterObservation> _waking;
};

MacTap::~MacTap() {
    if (_port) {
        CFMachPortInvalidate(_port.get());
    }
}

bool MacTap::open(EventMask mask) {
    _port = CFOwner(CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                                     mask, &MacTap::called, this));
    if (!_port) {
        return false;
    }
    // Sleep can leave a tap disabled without a word.
    _waking = std::make_unique<CenterObservation>([[NSWorkspace sharedWorkspace] notificationCenter],
                                                  NSWorkspaceDidWakeNotification, nil,
                                                  [this](NSNotification *) { restore(); });
    return true;
}

void MacTap::setEnabled(bool enabled) {
    _wanted = enabled;
    CGEventTapEnable(_port.get(), enabled);
}

std::unique_ptr<EventTapSource> MacTap::createRunLoopSource() {
    CFRunLoopSourceRef source = CFMachPortCreateRunLoopSource(kCFAllocatorDefault, _port.get(), 0);
    return source ? std::make_unique<MacTapSource>(source) : nullptr;
}

/// With a pool of its own: AppKit's is emptied when the application gets an event itself, which may take
/// days.
CGEventRef MacTap::called(CGEventTapProxy /*proxy*/, CGEventType type, CGEventRef event, void *tap) {
    @autoreleasepool {
        return static_cast<MacTap *>(tap)->filter(type, event);
    }
}

/// The callback may destroy this tap, so nothing of it is touched after the call.
CGEventRef MacTap::filter(CGEventType type, CGEventRef event) {
    if (type == kCGEventTapDisabledByUserInput) {
        restore();
        return event;
    }
    if (!event || type == kCGEventTapDisabledByTimeout) {
        _callback(static_cast<EventType>(type), nullptr);
        return event;
    }
    MacEvent wrapped(event);
    return _callback(static_cast<EventType>(type), &wrapped) ? event : nullptr;
}

void MacTap::restore() {
    if (_wanted && !CGEventTapIsEnabled(_port.get())) {
        CGEventTapEnable(_port.get(), true);
    }
}

} // namespace

std::unique_ptr<EventTap> MacEventTaps::create(EventMask mask, EventTapCallback callback) {
    auto tap = std::make_unique<MacTap>(callback);
    return tap->open(mask) ? std::move(tap) : nullptr;
}

ModifierFlags MacModifierState::currentFlags() const {
    return CGEventSourceFlagsState(kCGEventSourceStateCombinedSessionState);
}

} // namespace barquell
