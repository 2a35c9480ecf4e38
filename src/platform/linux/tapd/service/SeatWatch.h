#pragma once

#include "platform/linux/tapd/core/Ports.h"

#include <memory>

struct sd_login_monitor;

namespace barquell::tapd {

/// Who is in front, as the login manager says. One thread.
class SeatWatch {
public:
    /// Follows the folder of the seats, where there is one and that is not done yet; the login manager may
    /// come later. True where it has just begun; there is a descriptor from then on, readable when something
    /// has changed.
    bool follow();
    int descriptor() const;

    /// What has changed is then to be asked.
    void forgetChanges();

    /// Looked up each time. Everybody, where no login manager has ever told of seat0; nobody, where seat0 has
    /// no active session or what stands there cannot be read.
    static Front front();

private:
    struct Close {
        void operator()(sd_login_monitor *monitor) const;
    };

    std::unique_ptr<sd_login_monitor, Close> _monitor;
};

} // namespace barquell::tapd
