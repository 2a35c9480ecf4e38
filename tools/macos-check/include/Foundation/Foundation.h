// The calls of Foundation that we make, written down from its public documentation.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

#define nil nullptr
#define YES __objc_yes
#define NO __objc_no
typedef bool BOOL;
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef CGRect NSRect;
typedef CGSize NSSize;
typedef CGPoint NSPoint;

extern const NSRect NSZeroRect;
static inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
    return CGSize{w, h};
}
static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
    return CGRect{{x, y}, {w, h}};
}

@class NSString, NSArray, NSDictionary, NSError, NSNumber, NSData, NSURL;

@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)aSelector;
@end

typedef NSUInteger NSKeyValueObservingOptions; // options are plain integers in C++
enum : NSUInteger { NSKeyValueObservingOptionNew = 0x01 };
extern "C" NSString *const NSKeyValueChangeNewKey;

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (Class)class;
- (instancetype)init;
- (void)addObserver:(NSObject *)observer
         forKeyPath:(NSString *)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void *)context;
- (void)removeObserver:(NSObject *)observer forKeyPath:(NSString *)keyPath;
@end

typedef struct {
    unsigned long state;
    id __unsafe_unretained *itemsPtr;
    unsigned long *mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id __unsafe_unretained[])buffer
                                    count:(NSUInteger)len;
@end
@protocol NSCopying
@end

typedef enum NSComparisonResult : NSInteger {
    NSOrderedAscending = -1,
    NSOrderedSame = 0,
    NSOrderedDescending = 1,
} NSComparisonResult;

@interface NSString : NSObject <NSCopying>
- (NSComparisonResult)caseInsensitiveCompare:(NSString *)string;
@end
typedef NSString *NSNotificationName;

@interface NSArray : NSObject <NSFastEnumeration>
+ (instancetype)arrayWithObjects:(const id[])objects count:(NSUInteger)count;
- (NSUInteger)count;
- (id)firstObject;
@end
@interface NSMutableArray : NSArray
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObject:(id)object;
@end

@interface NSDictionary : NSObject <NSFastEnumeration>
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObjects:(const id[])objects
                              forKeys:(const id<NSCopying>[])keys
                                count:(NSUInteger)count;
- (id)objectForKey:(id)key;
- (NSArray *)allValues;
@end
@interface NSMutableDictionary : NSDictionary
- (void)setObject:(id)object forKey:(id<NSCopying>)key;
@end

@interface NSNumber : NSObject
+ (NSNumber *)numberWithBool:(BOOL)value;
+ (NSNumber *)numberWithLongLong:(long long)value;
+ (NSNumber *)numberWithDouble:(double)value;
- (BOOL)boolValue;
- (long long)longLongValue;
- (double)doubleValue;
@end

@interface NSData : NSObject
@end
@interface NSDate : NSObject
@end

@interface NSURL : NSObject
+ (instancetype)fileURLWithPath:(NSString *)path;
- (NSString *)path;
- (NSURL *)URLByDeletingLastPathComponent;
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle *mainBundle;
- (NSURL *)bundleURL;
+ (instancetype)bundleWithURL:(NSURL *)url;
- (NSString *)bundleIdentifier;
- (NSDictionary *)infoDictionary;
@end

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager *defaultManager;
- (NSString *)displayNameAtPath:(NSString *)path;
@end

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults *standardUserDefaults;
@end

@interface NSOperationQueue : NSObject
@property(class, readonly, strong) NSOperationQueue *mainQueue;
@end

@interface NSNotification : NSObject
@end
@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter *defaultCenter;
- (id)addObserverForName:(NSNotificationName)name
                  object:(id)object
                   queue:(NSOperationQueue *)queue
              usingBlock:(void (^)(NSNotification *notification))block;
- (void)removeObserver:(id)observer;
@end

@interface NSScriptCommand : NSObject
@property(copy) NSDictionary *arguments;
- (id)performDefaultImplementation;
@end

@class NSObject;
typedef NSObject *dispatch_semaphore_t;
typedef uint64_t dispatch_time_t;
#define DISPATCH_TIME_FOREVER (~0ULL)
extern "C" {
dispatch_semaphore_t dispatch_semaphore_create(long value);
long dispatch_semaphore_wait(dispatch_semaphore_t dsema, dispatch_time_t timeout);
long dispatch_semaphore_signal(dispatch_semaphore_t dsema);
}
