#pragma once

#include <QIcon>

#import <AppKit/AppKit.h>

namespace barquell {

/// How many pixels a point of the screen with the focus has.
qreal screenScale();

/// The same picture for the other side, at the screen's resolution; nil or a null icon for none.
NSImage *nativeImage(const QIcon &icon, QSize size);
QIcon iconFromNative(NSImage *image);

} // namespace barquell
