#include "platform/linux/tapd/service/SeatWatch.h"

#include <systemd/sd-login.h>

namespace barquell::tapd {

void SeatWatch::Close::operator()(sd_login_monitor *monitor) const {
    ::sd_login_monitor_unref(monitor);
}

bool SeatWatch::follow() {
    sd_login_monitor *monitor = nullptr;
    if (_monitor || ::sd_login_monitor_new("seat", &monitor) < 0) {
        return false;
    }
    _monitor.reset(monitor);
    return true;
}

int SeatWatch::descriptor() const {
    return ::sd_login_monitor_get_fd(_monitor.get());
}

void SeatWatch::forgetChanges() {
    ::sd_login_monitor_flush(_monitor.get());
}

Front SeatWatch::front() const {
    if (!_monitor) {
        return Front::everybody();
    }
    uid_t user = 0;
    return ::sd_seat_get_active("seat0", nullptr, &user) < 0 ? Front::nobody() : Front::of(user);
}

} // namespace barquell::tapd
