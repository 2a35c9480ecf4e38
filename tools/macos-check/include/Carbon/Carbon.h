// The calls of Carbon that we make, written down from its public documentation.
#pragma once

#include <ApplicationServices/ApplicationServices.h>

extern "C" {

typedef unsigned long ByteCount;
typedef unsigned long ItemCount;

typedef struct OpaqueEventRef *EventRef;
typedef struct OpaqueEventTargetRef *EventTargetRef;
typedef struct OpaqueEventHandlerRef *EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef *EventHandlerCallRef;
typedef struct EventHotKeyRefStruct *EventHotKeyRef;
typedef OSType EventParamName;
typedef OSType EventParamType;
typedef struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
} EventTypeSpec;
typedef struct EventHotKeyID {
    OSType signature;
    UInt32 id;
} EventHotKeyID;
typedef OSStatus (*EventHandlerProcPtr)(EventHandlerCallRef inHandlerCallRef, EventRef inEvent,
                                        void *inUserData);
typedef EventHandlerProcPtr EventHandlerUPP;

enum : OSType {
    kEventClassKeyboard = 0x6B657962,     // 'keyb'
    kEventParamDirectObject = 0x2D2D2D2D, // '----'
    typeEventHotKeyID = 0x686B6964,       // 'hkid'
};
enum : UInt32 { kEventHotKeyPressed = 5 };
enum : OptionBits { kEventHotKeyNoOptions = 0, kEventHotKeyExclusive = 1 };

enum : UInt32 {
    cmdKey = 1 << 8,
    shiftKey = 1 << 9,
    alphaLock = 1 << 10,
    optionKey = 1 << 11,
    controlKey = 1 << 12
};

EventTargetRef GetApplicationEventTarget(void);
OSStatus InstallEventHandler(EventTargetRef inTarget, EventHandlerUPP inHandler, ItemCount inNumTypes,
                             const EventTypeSpec *inList, void *inUserData, EventHandlerRef *outRef);
OSStatus CallNextEventHandler(EventHandlerCallRef inCallRef, EventRef inEvent);
OSType GetEventClass(EventRef inEvent);
OSStatus GetEventParameter(EventRef inEvent, EventParamName inName, EventParamType inDesiredType,
                           EventParamType *outActualType, ByteCount inBufferSize, ByteCount *outActualSize,
                           void *outData);
OSStatus RegisterEventHotKey(UInt32 inHotKeyCode, UInt32 inHotKeyModifiers, EventHotKeyID inHotKeyID,
                             EventTargetRef inTarget, OptionBits inOptions, EventHotKeyRef *outRef);
OSStatus UnregisterEventHotKey(EventHotKeyRef inHotKey);

typedef struct __TISInputSource *TISInputSourceRef;
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;
TISInputSourceRef TISCopyCurrentASCIICapableKeyboardInputSource(void);
void *TISGetInputSourceProperty(TISInputSourceRef inputSource, CFStringRef propertyKey);
UInt8 LMGetKbdType(void);

} // extern "C"
