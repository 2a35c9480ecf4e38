// The calls of ServiceManagement that we make, written down from its public documentation.
#pragma once

#import <Foundation/Foundation.h>

extern "C" const CFStringRef kSMDomainUserLaunchd;

__attribute__((availability(macos, introduced = 13.0)))
@interface SMAppService : NSObject
+ (instancetype)loginItemServiceWithIdentifier:(NSString *)identifier;
- (BOOL)registerAndReturnError:(NSError **)error;
- (BOOL)unregisterAndReturnError:(NSError **)error;
@end
