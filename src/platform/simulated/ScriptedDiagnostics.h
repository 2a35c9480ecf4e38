#pragma once

#include "platform/Diagnostics.h"

namespace barquell {

/// Names what the script says.
class ScriptedDiagnostics final : public Diagnostics {
public:
    QString settingsFile() const override { return file; }
    QStringList logCommand() const override { return command; }

    QString file;
    QStringList command;
};

} // namespace barquell
