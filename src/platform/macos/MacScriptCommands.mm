#include "platform/macos/MacScriptCommands.h"

#import <Foundation/Foundation.h>

namespace barquell {

namespace {

ScriptHandlers &handlers() {
    static ScriptHandlers handlers;
    return handlers;
}

} // namespace

void setScriptHandlers(ScriptHandlers replacing) {
    handlers() = std::move(replacing);
}

} // namespace barquell

// The scripting dictionary names the two classes.

@interface ToggleTouchBarCommand : NSScriptCommand
@end

@implementation ToggleTouchBarCommand

- (id)performDefaultImplementation {
    if (const auto &toggle = barquell::handlers().toggleTouchBar) {
        toggle();
    }
    return nil;
}

@end

@interface SetTouchBarActiveCommand : NSScriptCommand
@end

@implementation SetTouchBarActiveCommand

- (id)performDefaultImplementation {
    id argument = [[self arguments] objectForKey:@""]; // the one parameter of the command
    if (const auto &set = barquell::handlers().setTouchBarActive) {
        set(argument ? std::optional(static_cast<bool>([argument boolValue])) : std::nullopt);
    }
    return nil;
}

@end
