#pragma once

#include <QString>
#include <QStringList>

namespace barquell {

/// Where a curious person finds what the program keeps and says. Main thread only.
class Diagnostics {
public:
    virtual ~Diagnostics() = default;

    /// Empty where the settings are in no file. macOS: ~/Library/Preferences/<bundle identifier>.plist.
    virtual QString settingsFile() const = 0;

    /// A program and its arguments that print what this program has logged of late; empty where none does.
    /// macOS: log show --last 1d --predicate 'process == "barquell"'.
    virtual QStringList logCommand() const = 0;

protected:
    Diagnostics() = default;
    Diagnostics(const Diagnostics &) = default;
    Diagnostics &operator=(const Diagnostics &) = default;
};

} // namespace barquell
