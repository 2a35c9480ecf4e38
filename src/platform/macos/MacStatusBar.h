#pragma once

#include "platform/StatusBar.h"

namespace barquell {

/// The menu bar's right end.
class MacStatusBar final : public StatusBar {
public:
    std::unique_ptr<StatusBarItem> createItem() override;
    bool hasHost() const override { return true; }
};

} // namespace barquell
