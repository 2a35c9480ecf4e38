#pragma once

#include <QVariantMap>

namespace barquell {

/// What another program or a user's script asks for. macOS: NSScriptCommand.
class ScriptCommand {
public:
    virtual ~ScriptCommand() = default;

    /// Carries the command out; nil where it has no result.
    virtual QVariant performDefaultImplementation() = 0;

    /// By name; the empty name is the direct parameter.
    QVariantMap arguments;

protected:
    ScriptCommand() = default;
    ScriptCommand(const ScriptCommand &) = default;
    ScriptCommand &operator=(const ScriptCommand &) = default;
};

} // namespace barquell
