#pragma once

#include "platform/LoginItem.h"

#include <QString>

#include <string>
#include <vector>

namespace barquell {

/// A login item that a script knows about.
class ScriptedLoginItem final : public LoginItem {
public:
    bool setEnabled(const QString &helperIdentifier, bool enabled) override {
        journal.push_back((enabled ? "enable " : "disable ") + helperIdentifier.toStdString());
        return !refuses;
    }

    LoginItemState state(const QString &helperIdentifier) const override {
        askedFor = helperIdentifier;
        return known;
    }

    LoginItemState known;     ///< what the system says it knows
    bool refuses = false;     ///< setEnabled() fails
    mutable QString askedFor; ///< by the last call of state()

    /// The calls that change something, in their order.
    std::vector<std::string> journal;
};

} // namespace barquell
