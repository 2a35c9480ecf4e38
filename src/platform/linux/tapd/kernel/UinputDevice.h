#pragma once

#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"
#include "platform/linux/FileDescriptor.h"

#include <optional>
#include <span>
#include <string>

namespace barquell::tapd {

/// A device of our own, made through /dev/uinput; readers see it go when its owner does. One thread.
class UinputDevice {
public:
    /// Nothing where the kernel refuses.
    static std::optional<UinputDevice> create(const evdev::DeviceDescription &description, const char *phys);
    ~UinputDevice();
    UinputDevice(UinputDevice &&) noexcept = default;
    UinputDevice &operator=(UinputDevice &&) noexcept = default;
    UinputDevice(const UinputDevice &) = delete;
    UinputDevice &operator=(const UinputDevice &) = delete;

    /// The kernel's name of it, such as input12.
    const std::string &sysname() const { return _sysname; }

    /// False where not all could be sent.
    bool write(std::span<const evdev::InputEvent> events) const;

private:
    explicit UinputDevice(FileDescriptor control) : _control(std::move(control)) {}

    FileDescriptor _control;
    std::string _sysname;
};

} // namespace barquell::tapd
