#include "platform/macos/MacLoginItem.h"

#include "platform/macos/CFOwner.h"

#include <QString>

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include <dlfcn.h>

namespace barquell {

namespace {

using SetEnabled = Boolean (*)(CFStringRef identifier, Boolean enabled);
using CopyAllJobs = CFArrayRef (*)(CFStringRef domain);

template <typename Function>
Function lookUp(const char *name) {
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

bool setThroughService(NSString *identifier, bool enabled) {
    if (@available(macOS 13.0, *)) {
        SMAppService *service = [SMAppService loginItemServiceWithIdentifier:identifier];
        return enabled ? [service registerAndReturnError:nil] : [service unregisterAndReturnError:nil];
    }
    return false;
}

NSDictionary *jobLabelled(NSArray *jobs, NSString *label) {
    for (NSDictionary *job in jobs) {
        NSString *name = [job objectForKey:@"Label"];
        if (name && [name caseInsensitiveCompare:label] == NSOrderedSame) {
            return job;
        }
    }
    return nil;
}

} // namespace

bool MacLoginItem::setEnabled(const QString &helperIdentifier, bool enabled) {
    if (const auto set = lookUp<SetEnabled>("SMLoginItemSetEnabled")) {
        const CFOwner identifier(helperIdentifier.toCFString());
        return set(identifier.get(), enabled);
    }
    return setThroughService(helperIdentifier.toNSString(), enabled);
}

LoginItemState MacLoginItem::state(const QString &helperIdentifier) const {
    const auto copyAllJobs = lookUp<CopyAllJobs>("SMCopyAllJobDictionaries");
    if (!copyAllJobs) {
        return {LoginItemState::Kind::Unknown, std::nullopt};
    }
    const CFOwner jobs(copyAllJobs(kSMDomainUserLaunchd));
    NSDictionary *job = jobLabelled((__bridge NSArray *)jobs.get(), helperIdentifier.toNSString());
    if (!job) {
        return {LoginItemState::Kind::Off, std::nullopt};
    }
    id onDemand = [job objectForKey:@"OnDemand"];
    if (![onDemand isKindOfClass:[NSNumber class]]) {
        return {LoginItemState::Kind::Found, std::nullopt};
    }
    return {LoginItemState::Kind::Found, static_cast<bool>([onDemand boolValue])};
}

} // namespace barquell
