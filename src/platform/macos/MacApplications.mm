#include "platform/macos/MacApplications.h"

#include "platform/macos/MacImage.h"

namespace barquell {

namespace {

NSBundle *bundleAt(const QString &path) {
    return path.isEmpty() ? nil : [NSBundle bundleWithURL:[NSURL fileURLWithPath:path.toNSString()]];
}

} // namespace

QString MacApplications::pathOfApplication(const QString &bundleIdentifier) const {
    NSURL *url =
        [[NSWorkspace sharedWorkspace] URLForApplicationWithBundleIdentifier:bundleIdentifier.toNSString()];
    return QString::fromNSString([url path]);
}

QString MacApplications::bundleIdentifier(const QString &path) const {
    return QString::fromNSString([bundleAt(path) bundleIdentifier]);
}

QString MacApplications::displayName(const QString &path) const {
    return path.isEmpty()
               ? QString()
               : QString::fromNSString([[NSFileManager defaultManager] displayNameAtPath:path.toNSString()]);
}

QString MacApplications::ownName(const QString &path) const {
    NSDictionary *info = [bundleAt(path) infoDictionary];
    for (NSString *key in @[ @"CFBundleDisplayName", @"CFBundleName", @"CFBundleExecutable" ]) {
        id name = [info objectForKey:key];
        if ([name isKindOfClass:[NSString class]]) {
            return QString::fromNSString(name);
        }
    }
    return {};
}

QIcon MacApplications::icon(const QString &path) const {
    return path.isEmpty() ? QIcon()
                          : iconFromNative([[NSWorkspace sharedWorkspace] iconForFile:path.toNSString()]);
}

QString MacApplications::folder() const {
    return QStringLiteral("/Applications");
}

QString MacApplications::fileType() const {
    return QStringLiteral("app");
}

} // namespace barquell
