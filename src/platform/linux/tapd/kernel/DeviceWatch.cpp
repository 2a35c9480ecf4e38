#include "platform/linux/tapd/kernel/DeviceWatch.h"

#include <cerrno>
#include <libudev.h>
#include <string_view>

namespace barquell::tapd {

namespace {

struct ReleaseEnumerate {
    void operator()(udev_enumerate *enumerate) const { udev_enumerate_unref(enumerate); }
};

} // namespace

void DeviceWatch::Release::operator()(udev *context) const {
    udev_unref(context);
}
void DeviceWatch::Release::operator()(udev_monitor *monitor) const {
    udev_monitor_unref(monitor);
}
void DeviceWatch::Release::operator()(udev_device *device) const {
    udev_device_unref(device);
}

DeviceWatch::~DeviceWatch() = default;

std::unique_ptr<DeviceWatch> DeviceWatch::start(Callback found) {
    std::unique_ptr<DeviceWatch> watch(new DeviceWatch(std::move(found)));
    watch->_context.reset(udev_new());
    if (!watch->_context) {
        return nullptr;
    }
    watch->_monitor.reset(udev_monitor_new_from_netlink(watch->_context.get(), "udev"));
    udev_monitor *monitor = watch->_monitor.get();
    if (!monitor || udev_monitor_filter_add_match_subsystem_devtype(monitor, "input", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        return nullptr;
    }
    return watch;
}

int DeviceWatch::descriptor() const {
    return udev_monitor_get_fd(_monitor.get());
}

void DeviceWatch::scan() {
    const std::unique_ptr<udev_enumerate, ReleaseEnumerate> enumerate(udev_enumerate_new(_context.get()));
    udev_enumerate_add_match_subsystem(enumerate.get(), "input");
    udev_enumerate_add_match_sysname(enumerate.get(), "event*");
    udev_enumerate_add_match_is_initialized(enumerate.get());
    udev_enumerate_scan_devices(enumerate.get());
    udev_list_entry *entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumerate.get())) {
        const std::unique_ptr<udev_device, Release> device(
            udev_device_new_from_syspath(_context.get(), udev_list_entry_get_name(entry)));
        tell(device.get());
    }
}

void DeviceWatch::read() {
    errno = 0;
    const std::unique_ptr<udev_device, Release> device(udev_monitor_receive_device(_monitor.get()));
    if (!device && errno == ENOBUFS) {
        scan(); // news were lost
        return;
    }
    const char *action = device ? udev_device_get_action(device.get()) : nullptr;
    if (action && std::string_view(action) == "add") {
        tell(device.get());
    }
}

void DeviceWatch::tell(udev_device *device) const {
    const char *path = device ? udev_device_get_devnode(device) : nullptr;
    udev_device *parent =
        device ? udev_device_get_parent_with_subsystem_devtype(device, "input", nullptr) : nullptr;
    if (path && parent && std::string_view(path).starts_with("/dev/input/event")) {
        _found({path, udev_device_get_sysname(parent)});
    }
}

} // namespace barquell::tapd
