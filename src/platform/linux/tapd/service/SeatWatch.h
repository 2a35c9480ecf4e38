#pragma once

#include "platform/linux/tapd/core/Ports.h"

#include <memory>

struct sd_login_monitor;

namespace barquell::tapd {

/// Who is in front, as the login manager says. One thread.
class SeatWatch {
public:
    /// Follows the seats, where there is a login manager and that is not done yet. True where it has just
    /// begun; there is a descriptor from then on, readable when something has changed.
    bool follow();
    int descriptor() const;

    /// What has changed is then to be asked.
    void forgetChanges();

    Front front() const;

private:
    struct Close {
        void operator()(sd_login_monitor *monitor) const;
    };

    std::unique_ptr<sd_login_monitor, Close> _monitor;
};

} // namespace barquell::tapd
