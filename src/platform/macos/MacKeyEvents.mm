#include "platform/macos/MacKeyEvents.h"

#import <AppKit/AppKit.h>

namespace barquell {

/// Qt delivers key events from inside AppKit's own delivery, so the current event is the one behind Qt's.
/// Here the keys of windows mean what the physical ones do.
std::optional<KeyEvent> MacKeyEvents::keyEvent(const QKeyEvent & /*event*/, KeyMeanings /*meanings*/) const {
    NSEvent *native = [NSApp currentEvent];
    if ([native type] == NSEventTypeFlagsChanged) {
        return KeyEvent{KeyEvent::Type::FlagsChanged, [native keyCode], [native modifierFlags], {}, false};
    }
    if ([native type] != NSEventTypeKeyDown) {
        return std::nullopt;
    }
    return KeyEvent{KeyEvent::Type::KeyDown, [native keyCode], [native modifierFlags],
                    QString::fromNSString([native charactersIgnoringModifiers]),
                    static_cast<bool>([native isARepeat])};
}

void MacKeyEvents::beep() {
    NSBeep();
}

} // namespace barquell
