#include "platform/macos/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>

namespace barquell {

namespace {

NSArray *nativeList(const QVariantList &list) {
    NSMutableArray *array = [NSMutableArray arrayWithCapacity:static_cast<NSUInteger>(list.size())];
    for (const QVariant &element : list) {
        [array addObject:propertyList(element)];
    }
    return array;
}

NSDictionary *nativeMap(const QVariantMap &map) {
    NSMutableDictionary *dictionary = [NSMutableDictionary dictionary];
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        [dictionary setObject:propertyList(entry.value()) forKey:entry.key().toNSString()];
    }
    return dictionary;
}

QVariant fromNumber(NSNumber *number) {
    if (CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID()) {
        return static_cast<bool>([number boolValue]);
    }
    if (CFNumberIsFloatType((__bridge CFNumberRef)number)) {
        return [number doubleValue];
    }
    return QVariant::fromValue(static_cast<qlonglong>([number longLongValue]));
}

QVariantList fromArray(NSArray *array) {
    QVariantList list;
    for (id element in array) {
        list.append(fromPropertyList(element));
    }
    return list;
}

QVariantMap fromDictionary(NSDictionary *dictionary) {
    QVariantMap map;
    for (NSString *key in dictionary) {
        map.insert(QString::fromNSString(key), fromPropertyList([dictionary objectForKey:key]));
    }
    return map;
}

} // namespace

id propertyList(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return [NSNumber numberWithBool:value.toBool()];
    case QMetaType::LongLong:
        return [NSNumber numberWithLongLong:value.toLongLong()];
    case QMetaType::Double:
        return [NSNumber numberWithDouble:value.toDouble()];
    case QMetaType::QString:
        return value.toString().toNSString();
    case QMetaType::QByteArray:
        return value.toByteArray().toNSData();
    case QMetaType::QDateTime:
        return value.toDateTime().toNSDate();
    case QMetaType::QVariantList:
        return nativeList(value.toList());
    case QMetaType::QVariantMap:
        return nativeMap(value.toMap());
    default:
        return nil;
    }
}

QVariant fromPropertyList(id object) {
    if ([object isKindOfClass:[NSString class]]) {
        return QString::fromNSString(object);
    }
    if ([object isKindOfClass:[NSNumber class]]) {
        return fromNumber(object);
    }
    if ([object isKindOfClass:[NSData class]]) {
        return QByteArray::fromNSData(object);
    }
    if ([object isKindOfClass:[NSDate class]]) {
        return QDateTime::fromNSDate(object).toUTC();
    }
    if ([object isKindOfClass:[NSArray class]]) {
        return fromArray(object);
    }
    if ([object isKindOfClass:[NSDictionary class]]) {
        return fromDictionary(object);
    }
    return {};
}

} // namespace barquell
