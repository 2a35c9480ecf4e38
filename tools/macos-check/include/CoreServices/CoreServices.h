// The calls of CoreServices that we make, written down from its public documentation.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

enum { noErr = 0 };

typedef struct UCKeyboardLayout UCKeyboardLayout;
typedef UInt32 OptionBits;
enum { kUCKeyActionDown = 0, kUCKeyActionUp = 1, kUCKeyActionAutoKey = 2, kUCKeyActionDisplay = 3 };
enum { kUCKeyTranslateNoDeadKeysBit = 0, kUCKeyTranslateNoDeadKeysMask = 1 << kUCKeyTranslateNoDeadKeysBit };
OSStatus UCKeyTranslate(const UCKeyboardLayout *keyLayoutPtr, UInt16 virtualKeyCode, UInt16 keyAction,
                        UInt32 modifierKeyState, UInt32 keyboardType, OptionBits keyTranslateOptions,
                        UInt32 *deadKeyState, UniCharCount maxStringLength, UniCharCount *actualStringLength,
                        UniChar unicodeString[]);

} // extern "C"
