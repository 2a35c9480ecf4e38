#pragma once

#include "platform/Diagnostics.h"
#include "platform/linux/FileSettingsStore.h"

namespace barquell {

/// The settings' file, and what the journal has under the program's name.
class LinuxDiagnostics final : public Diagnostics {
public:
    QString settingsFile() const override { return FileSettingsStore::defaultPath(); }

    QStringList logCommand() const override {
        return {QStringLiteral("journalctl"), QStringLiteral("--identifier=barquell"),
                QStringLiteral("--lines=500"), QStringLiteral("--no-pager")};
    }
};

} // namespace barquell
