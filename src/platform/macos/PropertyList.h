#pragma once

#include <QVariant>

#import <Foundation/Foundation.h>

namespace barquell {

/// A storable value and its property list object; nil for what has none. Types stay apart: a truth is a
/// CFBoolean, a date a date.
id propertyList(const QVariant &value);
QVariant fromPropertyList(id object);

} // namespace barquell
