#pragma once

#include <QString>

class QIcon;

namespace barquell {

/// The applications that are installed, as files. On Linux an application's file is its desktop entry and its
/// bundle identifier the entry's id without ".desktop". Main thread only.
class Applications {
public:
    virtual ~Applications() = default;

    /// Empty where none is found. macOS: [NSWorkspace.sharedWorkspace
    /// URLForApplicationWithBundleIdentifier:].
    virtual QString pathOfApplication(const QString &bundleIdentifier) const = 0;

    /// Empty where the file is no application or has no identifier.
    /// macOS: [[NSBundle bundleWithURL:] bundleIdentifier].
    virtual QString bundleIdentifier(const QString &path) const = 0;

    /// As the system shows it to the user, in the user's language; empty where it gives none.
    /// macOS: [NSFileManager.defaultManager displayNameAtPath:].
    virtual QString displayName(const QString &path) const = 0;

    /// The name that the application gives itself; empty where it gives none. macOS: the first present of
    /// CFBundleDisplayName, CFBundleName and CFBundleExecutable in the bundle's infoDictionary.
    virtual QString ownName(const QString &path) const = 0;

    /// A null icon where there is no such file. macOS: [NSWorkspace.sharedWorkspace iconForFile:].
    virtual QIcon icon(const QString &path) const = 0;

    /// Where a user looks for applications: what stands for "/Applications". macOS: that folder itself.
    virtual QString folder() const = 0;

    /// The ending of application files, without the dot. macOS: "app".
    virtual QString fileType() const = 0;

protected:
    Applications() = default;
    Applications(const Applications &) = default;
    Applications &operator=(const Applications &) = default;
};

} // namespace barquell
