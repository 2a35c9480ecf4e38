#include "platform/macos/MacKeyboardModifiers.h"

#import <AppKit/AppKit.h>

namespace barquell {

struct MacKeyboardModifiers::Native {
    id monitor = nil;
    std::function<void()> mayHaveChanged;
};

MacKeyboardModifiers::MacKeyboardModifiers() : _native(std::make_unique<Native>()) {}

MacKeyboardModifiers::~MacKeyboardModifiers() {
    if (_native->monitor) {
        [NSEvent removeMonitor:_native->monitor];
    }
}

void MacKeyboardModifiers::watch(std::function<void()> mayHaveChanged) {
    Native *const native = _native.get();
    native->mayHaveChanged = std::move(mayHaveChanged);
    if (!native->monitor) {
        native->monitor = [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskFlagsChanged
                                                                handler:^NSEvent *(NSEvent *event) {
                                                                  native->mayHaveChanged();
                                                                  return event;
                                                                }];
    }
}

} // namespace barquell
