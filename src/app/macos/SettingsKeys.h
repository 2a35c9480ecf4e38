#pragma once

#include <QStringList>

namespace barquell {

/// The settings that somebody may change from outside while the program runs: those of the handbook. The
/// system tells of such changes key by key.
inline QStringList settingsKeys() {
    return {QStringLiteral("Enabled"),
            QStringLiteral("PauseKeyAllowed"),
            QStringLiteral("PauseKeyFn"),
            QStringLiteral("PauseKeyCommand"),
            QStringLiteral("PauseKeyOption"),
            QStringLiteral("PauseKeyControl"),
            QStringLiteral("PauseKeyShift"),
            QStringLiteral("PauseKeyCommandType"),
            QStringLiteral("PauseKeyOptionType"),
            QStringLiteral("PauseKeyControlType"),
            QStringLiteral("PauseKeyShiftType"),
            QStringLiteral("ClearPauseKeys"),
            QStringLiteral("BypassApps"),
            QStringLiteral("ShowStatusItem"),
            QStringLiteral("ShowHUD"),
            QStringLiteral("HUDLocation"),
            QStringLiteral("ShowHUDPauseKeys"),
            QStringLiteral("ShowHUDFrontApp"),
            QStringLiteral("SilentStart"),
            QStringLiteral("LaunchAtStart"),
            QStringLiteral("OptionalDockIcon"),
            QStringLiteral("LazyQuit"),
            QStringLiteral("AnimatedWindowSizing"),
            QStringLiteral("RemoveWithoutConfirmation"),
            QStringLiteral("ToggleShortcut"),
            QStringLiteral("BypassShortcut"),
            QStringLiteral("RevealShortcut"),
            QStringLiteral("ToggleShortcutEnabled"),
            QStringLiteral("BypassShortcutEnabled"),
            QStringLiteral("RevealShortcutEnabled"),
            QStringLiteral("Active")};
}

} // namespace barquell
