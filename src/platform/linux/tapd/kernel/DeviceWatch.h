#pragma once

#include <functional>
#include <memory>
#include <string>

struct udev;
struct udev_device;
struct udev_monitor;

namespace barquell::tapd {

/// An event node that udev has told everybody of.
struct FoundDevice {
    std::string path;    ///< such as /dev/input/event5
    std::string sysname; ///< the kernel's name of the device behind it, such as input12; none is used twice
};

/// Tells of event nodes as they come. That they go is read from the nodes themselves. One thread, in which
/// the callback is called too.
class DeviceWatch {
public:
    using Callback = std::function<void(const FoundDevice &)>;

    /// Nothing where udev cannot be reached.
    static std::unique_ptr<DeviceWatch> start(Callback found);
    ~DeviceWatch();
    DeviceWatch(const DeviceWatch &) = delete;
    DeviceWatch &operator=(const DeviceWatch &) = delete;

    /// Readable when read() has something to do.
    int descriptor() const;
    void read();

    /// Tells of all that are there, also of those that were told already.
    void scan();

private:
    explicit DeviceWatch(Callback found) : _found(std::move(found)) {}

    void tell(udev_device *device) const;

    struct Release {
        void operator()(udev *context) const;
        void operator()(udev_monitor *monitor) const;
        void operator()(udev_device *device) const;
    };

    Callback _found;
    std::unique_ptr<udev, Release> _context;
    std::unique_ptr<udev_monitor, Release> _monitor;
};

} // namespace barquell::tapd
