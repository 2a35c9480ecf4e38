#include "platform/macos/MacSettingsStore.h"

#include "platform/macos/CFOwner.h"
#include "platform/macos/PropertyList.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"

#import <Foundation/Foundation.h>

#include <utility>

/// Hears of changes of the standard user defaults, those of other processes included.
@interface BarquellDefaultsObserver : NSObject
@property(nonatomic) std::function<void()> changed;
@end

@implementation BarquellDefaultsObserver

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    barquell::RunLoop::main().performAsync([self] { // told on whichever thread wrote
        if (self.changed) {
            self.changed();
        }
    });
}

@end

namespace barquell {

struct MacSettingsStore::Native {
    CFOwner<CFStringRef> domain;
    BarquellDefaultsObserver *observer = [[BarquellDefaultsObserver alloc] init];
    bool observing = false;
};

MacSettingsStore::MacSettingsStore(const QString &domain, const QStringList &keys)
    : _native(std::make_unique<Native>()), _keys(keys) {
    _native->domain = CFOwner(domain.toCFString());
}

MacSettingsStore::~MacSettingsStore() {
    if (_native->observing) {
        for (const QString &key : std::as_const(_keys)) {
            [[NSUserDefaults standardUserDefaults] removeObserver:_native->observer
                                                       forKeyPath:key.toNSString()];
        }
    }
}

QVariantMap MacSettingsStore::read() {
    const CFOwner stored(CFPreferencesCopyMultiple(nullptr, _native->domain.get(), kCFPreferencesCurrentUser,
                                                   kCFPreferencesAnyHost));
    return fromPropertyList((__bridge NSDictionary *)stored.get()).toMap();
}

SettingsStore::Outcome MacSettingsStore::write(const QString &key, const QVariant &value) {
    const CFOwner name(key.toCFString());
    CFPreferencesSetValue(name.get(), (__bridge CFPropertyListRef)propertyList(value), _native->domain.get(),
                          kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
    return synchronize();
}

SettingsStore::Outcome MacSettingsStore::remove(const QString &key) {
    const CFOwner name(key.toCFString());
    CFPreferencesSetValue(name.get(), nullptr, _native->domain.get(), kCFPreferencesCurrentUser,
                          kCFPreferencesAnyHost);
    return synchronize();
}

SettingsStore::Outcome MacSettingsStore::removeDomain() {
    const CFOwner keys(
        CFPreferencesCopyKeyList(_native->domain.get(), kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    CFPreferencesSetMultiple(nullptr, keys.get(), _native->domain.get(), kCFPreferencesCurrentUser,
                             kCFPreferencesAnyHost);
    return synchronize();
}

void MacSettingsStore::watch(std::function<void()> mayHaveChanged) {
    _native->observer.changed = std::move(mayHaveChanged);
    if (std::exchange(_native->observing, true)) {
        return;
    }
    for (const QString &key : std::as_const(_keys)) {
        [[NSUserDefaults standardUserDefaults] addObserver:_native->observer
                                                forKeyPath:key.toNSString()
                                                   options:NSKeyValueObservingOptionNew
                                                   context:nil];
    }
}

SettingsStore::Outcome MacSettingsStore::synchronize() const {
    if (CFPreferencesSynchronize(_native->domain.get(), kCFPreferencesCurrentUser, kCFPreferencesAnyHost)) {
        return Outcome::Done;
    }
    log(QStringLiteral("The settings could not be stored"));
    return Outcome::Failed;
}

} // namespace barquell
