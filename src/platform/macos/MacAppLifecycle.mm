#include "platform/macos/MacAppLifecycle.h"

#include "platform/macos/CenterObservation.h"
#include "platform/macos/MacScriptCommands.h"

#include <QApplication>

#import <AppKit/AppKit.h>
#include <ApplicationServices/ApplicationServices.h>

#include <dlfcn.h>

using barquell::AppLifecycle;
using barquell::AppLifecycleDelegate;

@interface BarquellApplicationDelegate : NSObject <NSApplicationDelegate>
@property(nonatomic, assign) AppLifecycle *lifecycle;
@end

@implementation BarquellApplicationDelegate

- (BOOL)applicationShouldHandleReopen:(NSApplication *)application hasVisibleWindows:(BOOL)visible {
    AppLifecycleDelegate *delegate = self.lifecycle->delegate();
    return delegate ? delegate->applicationShouldHandleReopen(visible) : YES;
}

@end

namespace barquell {

namespace {

/// Qt's menu of the application has a Quit of its own that takes Command-Q before our windows hear of it;
/// whether that key quits is for our own item to say.
void giveUpTheMenusQuitKey() {
    for (NSMenuItem *item in [[[[[NSApp mainMenu] itemArray] firstObject] submenu] itemArray]) {
        if ([item action] == @selector(terminate:)) {
            [item setKeyEquivalent:@""];
        }
    }
}

} // namespace

struct MacAppLifecycle::Native {
    BarquellApplicationDelegate *delegate =
        [[BarquellApplicationDelegate alloc] init]; // NSApp holds it weakly
    std::unique_ptr<CenterObservation> launched;
};

MacAppLifecycle::MacAppLifecycle() : _native(std::make_unique<Native>()) {
    _native->delegate.lifecycle = this;
    [[NSApplication sharedApplication] setDelegate:_native->delegate];
    _native->launched = std::make_unique<CenterObservation>(
        [NSNotificationCenter defaultCenter], NSApplicationDidFinishLaunchingNotification, nil,
        [this](NSNotification *) {
            giveUpTheMenusQuitKey();
            if (_delegate) {
                _delegate->applicationDidFinishLaunching();
            }
        });
}

MacAppLifecycle::~MacAppLifecycle() = default;

void MacAppLifecycle::setDelegate(AppLifecycleDelegate *delegate) {
    _delegate = delegate;
}

AppLifecycleDelegate *MacAppLifecycle::delegate() const {
    return _delegate;
}

void MacAppLifecycle::setScriptCommands(const ScriptCommands &commands) {
    setMacScriptCommands(commands);
}

int MacAppLifecycle::run() {
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [this] {
        if (_delegate) {
            _delegate->applicationWillTerminate();
        }
    });
    return QApplication::exec();
}

void MacAppLifecycle::terminate() {
    [NSApp terminate:nil]; // Qt's delegate turns it into the end of its loop
}

ActivationPolicy MacAppLifecycle::activationPolicy() const {
    return [NSApp activationPolicy] == NSApplicationActivationPolicyRegular ? ActivationPolicy::Regular
                                                                            : ActivationPolicy::Accessory;
}

void MacAppLifecycle::setActivationPolicy(ActivationPolicy policy) {
    [NSApp setActivationPolicy:policy == ActivationPolicy::Regular ? NSApplicationActivationPolicyRegular
                                                                   : NSApplicationActivationPolicyAccessory];
}

void MacAppLifecycle::activate() {
    [NSApp activateIgnoringOtherApps:YES];
}

void MacAppLifecycle::bringFirstProcessToFront() {
    using ProcessCall = OSStatus (*)(ProcessSerialNumber *);
    const auto getNext = reinterpret_cast<ProcessCall>(dlsym(RTLD_DEFAULT, "GetNextProcess"));
    const auto setFront = reinterpret_cast<ProcessCall>(dlsym(RTLD_DEFAULT, "SetFrontProcess"));
    if (getNext && setFront) {
        ProcessSerialNumber process{0, 0};
        getNext(&process);
        setFront(&process);
    }
}

} // namespace barquell
