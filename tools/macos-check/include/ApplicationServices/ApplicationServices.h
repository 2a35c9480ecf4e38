// The calls of ApplicationServices that we make, written down from its public documentation.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>

extern "C" {

Boolean AXIsProcessTrusted(void);

typedef struct ProcessSerialNumber {
    UInt32 highLongOfPSN;
    UInt32 lowLongOfPSN;
} ProcessSerialNumber;

} // extern "C"
