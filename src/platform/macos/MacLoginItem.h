#pragma once

#include "platform/LoginItem.h"

namespace barquell {

/// The login helper inside our bundle, through ServiceManagement. The list of jobs is looked up at run time,
/// since the system may drop it; the newer service serves only where the old call is missing.
class MacLoginItem final : public LoginItem {
public:
    bool setEnabled(const QString &helperIdentifier, bool enabled) override;
    LoginItemState state(const QString &helperIdentifier) const override;
};

} // namespace barquell
