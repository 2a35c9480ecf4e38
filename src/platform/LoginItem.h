#pragma once

#include <optional>

class QString;

namespace barquell {

/// What the system knows of a login item.
struct LoginItemState {
    enum class Kind {
        Unknown, ///< the place cannot tell
        Off,     ///< there is none
        Found,   ///< there is one, with a value or without
    };

    Kind kind = Kind::Unknown;
    std::optional<bool> value; ///< of one that was found
};

/// Starts a helper at login, which starts the program. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// False where the system refuses. macOS: SMLoginItemSetEnabled.
    virtual bool setEnabled(const QString &helperIdentifier, bool enabled) = 0;

    /// Identifiers are compared without regard to case.
    /// macOS: SMCopyAllJobDictionaries(kSMDomainUserLaunchd), where it can be looked up; the job's
    /// "OnDemand".
    virtual LoginItemState state(const QString &helperIdentifier) const = 0;

protected:
    LoginItem() = default;
    LoginItem(const LoginItem &) = default;
    LoginItem &operator=(const LoginItem &) = default;
};

} // namespace barquell
