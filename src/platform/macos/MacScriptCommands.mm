#include "platform/macos/MacScriptCommands.h"

#import <Foundation/Foundation.h>

namespace barquell {

namespace {

ScriptCommands &commands() {
    static ScriptCommands commands;
    return commands;
}

} // namespace

void setMacScriptCommands(ScriptCommands replacing) {
    commands() = std::move(replacing);
}

} // namespace barquell

// The scripting dictionary names the two classes.

@interface ToggleTouchBarCommand : NSScriptCommand
@end

@implementation ToggleTouchBarCommand

- (id)performDefaultImplementation {
    if (const auto &toggle = barquell::commands().toggleTouchBar) {
        toggle();
    }
    return nil;
}

@end

@interface SetTouchBarActiveCommand : NSScriptCommand
@end

@implementation SetTouchBarActiveCommand

- (id)performDefaultImplementation {
    id argument = [[self arguments] objectForKey:@""]; // the direct parameter
    if (const auto &set = barquell::commands().setTouchBarActive) {
        set(static_cast<bool>([argument boolValue]));
    }
    return nil;
}

@end
