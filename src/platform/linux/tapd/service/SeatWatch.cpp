#include "platform/linux/tapd/service/SeatWatch.h"

#include <cerrno>
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

Front SeatWatch::front() {
    uid_t user = 0;
    const int error = ::sd_seat_get_active("seat0", nullptr, &user);
    // The folder of the seats is made where there is no login manager, too; the seat's file is its own.
    if (error == -ENXIO) {
        return Front::everybody();
    }
    return error < 0 ? Front::nobody() : Front::of(user);
}

} // namespace barquell::tapd
