// The calls of CoreGraphics that we make, written down from its public documentation.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef double CGFloat;
typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} CGPoint;
typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} CGSize;
typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

typedef struct CGImage *CGImageRef;
typedef struct __CGEvent *CGEventRef;
typedef struct __CGEventTapProxy *CGEventTapProxy;
typedef uint64_t CGEventMask;
typedef uint64_t CGEventFlags;

typedef enum CGEventType : uint32_t {
    kCGEventNull = 0,
    kCGEventFlagsChanged = 12,
    kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
    kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
} CGEventType;
enum : CGEventFlags {
    kCGEventFlagMaskShift = 0x20000,
    kCGEventFlagMaskControl = 0x40000,
    kCGEventFlagMaskAlternate = 0x80000,
    kCGEventFlagMaskCommand = 0x100000,
    kCGEventFlagMaskSecondaryFn = 0x800000,
};
typedef enum CGEventTapLocation : uint32_t {
    kCGHIDEventTap = 0,
    kCGSessionEventTap = 1,
    kCGAnnotatedSessionEventTap = 2,
} CGEventTapLocation;
typedef enum CGEventTapPlacement : uint32_t {
    kCGHeadInsertEventTap = 0,
    kCGTailAppendEventTap = 1
} CGEventTapPlacement;
typedef enum CGEventTapOptions : uint32_t {
    kCGEventTapOptionDefault = 0,
    kCGEventTapOptionListenOnly = 1,
} CGEventTapOptions;
typedef enum CGEventField : uint32_t { kCGEventSourceUnixProcessID = 41 } CGEventField;
typedef enum CGEventSourceStateID : int32_t {
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1,
} CGEventSourceStateID;

typedef CGEventRef (*CGEventTapCallBack)(CGEventTapProxy proxy, CGEventType type, CGEventRef event,
                                         void *userInfo);
CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place, CGEventTapOptions options,
                               CGEventMask eventsOfInterest, CGEventTapCallBack callback, void *userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
CGEventFlags CGEventGetFlags(CGEventRef event);
void CGEventSetFlags(CGEventRef event, CGEventFlags flags);
int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field);
CGEventFlags CGEventSourceFlagsState(CGEventSourceStateID stateID);

} // extern "C"
