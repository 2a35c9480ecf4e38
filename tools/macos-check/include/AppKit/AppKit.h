// The calls of AppKit that we make, written down from its public documentation.
#pragma once

#import <Foundation/Foundation.h>
#import <QuartzCore/QuartzCore.h>

@class NSMenu, NSView, NSWindow, NSImage, NSApplication, NSGraphicsContext;

extern "C" {
extern NSNotificationName const NSWorkspaceDidActivateApplicationNotification;
extern NSNotificationName const NSWorkspaceDidWakeNotification;
extern NSNotificationName const NSApplicationDidFinishLaunchingNotification;
extern NSApplication *NSApp;
void NSBeep(void);
}

typedef enum NSEventType : NSUInteger {
    NSEventTypeKeyDown = 10,
    NSEventTypeKeyUp = 11,
    NSEventTypeFlagsChanged = 12,
    NSEventTypeSystemDefined = 14,
    NSEventTypeGesture = 29,
    NSEventTypeDirectTouch = 37,
} NSEventType;
typedef NSUInteger NSEventModifierFlags; // options are plain integers in C++
enum : NSUInteger {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};
typedef enum NSEventMask : unsigned long long {
    NSEventMaskFlagsChanged = 1ULL << NSEventTypeFlagsChanged
} NSEventMask;
typedef NSUInteger NSTouchPhase;
enum : NSUInteger {
    NSTouchPhaseBegan = 1 << 0,
    NSTouchPhaseMoved = 1 << 1,
    NSTouchPhaseStationary = 1 << 2,
    NSTouchPhaseTouching = NSTouchPhaseBegan | NSTouchPhaseMoved | NSTouchPhaseStationary,
};

@interface NSSet : NSObject
- (NSUInteger)count;
@end

@interface NSEvent : NSObject
@property(readonly) NSEventType type;
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly) unsigned short keyCode;
@property(readonly, getter=isARepeat) BOOL ARepeat;
@property(readonly, copy) NSString *charactersIgnoringModifiers;
+ (NSEvent *)eventWithCGEvent:(CGEventRef)cgEvent;
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent * (^)(NSEvent *event))block;
+ (void)removeMonitor:(id)eventMonitor;
- (NSSet *)touchesMatchingPhase:(NSTouchPhase)phase inView:(NSView *)view;
@end

typedef enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2,
} NSApplicationActivationPolicy;

@protocol NSApplicationDelegate <NSObject>
@optional
- (BOOL)applicationShouldHandleReopen:(NSApplication *)sender hasVisibleWindows:(BOOL)flag;
@end

@interface NSResponder : NSObject
- (void)mouseDown:(NSEvent *)event;
- (void)rightMouseDown:(NSEvent *)event;
@end

@interface NSMenuItem : NSObject
@property SEL action;
@property(copy) NSString *keyEquivalent;
@property(strong) NSMenu *submenu;
@end

@interface NSMenu : NSObject
@property(copy) NSArray *itemArray;
@end

@interface NSApplication : NSResponder
@property(strong) NSMenu *mainMenu;
@property(class, readonly, strong) NSApplication *sharedApplication;
@property(weak) id<NSApplicationDelegate> delegate;
@property(readonly, strong) NSEvent *currentEvent;
- (void)terminate:(id)sender;
- (NSApplicationActivationPolicy)activationPolicy;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
@end

@interface NSRunningApplication : NSObject
@property(readonly, copy) NSString *bundleIdentifier;
@property(readonly, copy) NSURL *bundleURL;
@property(readonly) int processIdentifier;
+ (NSArray *)runningApplicationsWithBundleIdentifier:(NSString *)bundleIdentifier;
@end

@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@property BOOL activates;
@property(copy) NSDictionary *environment;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace *sharedWorkspace;
@property(readonly, strong) NSNotificationCenter *notificationCenter;
@property(readonly, strong) NSRunningApplication *frontmostApplication;
- (BOOL)openURL:(NSURL *)url;
- (NSURL *)URLForApplicationWithBundleIdentifier:(NSString *)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL *)applicationURL
               configuration:(NSWorkspaceOpenConfiguration *)configuration
           completionHandler:(void (^)(NSRunningApplication *app, NSError *error))completionHandler;
- (NSImage *)iconForFile:(NSString *)fullPath;
@end

@interface NSImage : NSObject
- (instancetype)initWithData:(NSData *)data;
@property NSSize size;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
- (CGImageRef)CGImageForProposedRect:(NSRect *)proposedDestRect
                             context:(NSGraphicsContext *)referenceContext
                               hints:(NSDictionary *)hints;
@end

typedef enum NSBitmapImageFileType : NSUInteger { NSBitmapImageFileTypePNG = 4 } NSBitmapImageFileType;

@interface NSBitmapImageRep : NSObject
- (instancetype)initWithCGImage:(CGImageRef)cgImage;
- (NSData *)representationUsingType:(NSBitmapImageFileType)storageType properties:(NSDictionary *)properties;
@end

@interface NSScreen : NSObject
@property(class, readonly, strong) NSScreen *mainScreen;
@property(readonly) NSRect frame;
@property(readonly) CGFloat backingScaleFactor;
@end

@interface NSColor : NSObject
@property(class, readonly, strong) NSColor *clearColor;
@end

@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property NSRect frame;
@property(readonly) NSRect bounds;
@property(getter=isHidden) BOOL hidden;
@property CGFloat alphaValue;
@property BOOL autoresizesSubviews;
@property BOOL wantsLayer;
@property(strong) CALayer *layer;
@property(copy) NSArray *subviews;
@property(copy) NSString *toolTip;
- (void)addSubview:(NSView *)view;
- (void)removeFromSuperview;
- (instancetype)animator;
@end

typedef enum NSVisualEffectBlendingMode : NSInteger {
    NSVisualEffectBlendingModeBehindWindow = 0,
    NSVisualEffectBlendingModeWithinWindow = 1,
} NSVisualEffectBlendingMode;
typedef enum NSVisualEffectState : NSInteger {
    NSVisualEffectStateFollowsWindowActiveState = 0,
    NSVisualEffectStateActive = 1,
    NSVisualEffectStateInactive = 2,
} NSVisualEffectState;
typedef enum NSVisualEffectMaterial : NSInteger { NSVisualEffectMaterialPopover = 6 } NSVisualEffectMaterial;

@interface NSVisualEffectView : NSView
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@property NSVisualEffectMaterial material;
@end

typedef NSUInteger NSWindowStyleMask; // options are plain integers in C++
enum : NSUInteger { NSWindowStyleMaskBorderless = 0 };
typedef enum NSBackingStoreType : NSUInteger { NSBackingStoreBuffered = 2 } NSBackingStoreType;
typedef NSUInteger NSWindowCollectionBehavior; // options are plain integers in C++
enum : NSUInteger {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
};
typedef NSInteger NSWindowLevel;

@interface NSImageView : NSView
- (void)setImage:(NSImage *)image;
@end

@interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property(getter=isOpaque) BOOL opaque;
@property(copy) NSColor *backgroundColor;
@property BOOL ignoresMouseEvents;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property BOOL hasShadow;
@property CGFloat alphaValue;
@property(strong) NSView *contentView;
@property(copy) NSDictionary *animations;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (void)orderFront:(id)sender;
- (void)orderOut:(id)sender;
- (void)close;
- (instancetype)animator;
@end

@interface NSAnimation : NSObject
- (void)stopAnimation;
@end

@interface NSAnimationContext : NSObject
@property double duration;
+ (void)runAnimationGroup:(void (^)(NSAnimationContext *context))changes
        completionHandler:(void (^)(void))completionHandler;
@end

extern "C" const CGFloat NSVariableStatusItemLength;
typedef NSUInteger NSStatusItemBehavior; // options are plain integers in C++
enum : NSUInteger {
    NSStatusItemBehaviorRemovalAllowed = 1 << 1,
};

@interface NSButton : NSView
@property(strong) NSImage *image;
- (void)performClick:(id)sender;
@end
@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property(copy) NSString *autosaveName;
@property NSStatusItemBehavior behavior;
@property(getter=isVisible) BOOL visible;
@property(strong) NSMenu *menu;
@property(readonly, strong) NSStatusBarButton *button;
@end

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar *systemStatusBar;
- (NSStatusItem *)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem *)item;
@end
