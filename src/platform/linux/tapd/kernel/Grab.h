#pragma once

#include <linux/input.h>
#include <sys/ioctl.h>

#include <optional>
#include <utility>

namespace barquell::tapd {

/// The exclusive use of an evdev node (EVIOCGRAB). It is given back by name and not by closing the node,
/// since another descriptor of the same open file would keep it. One thread.
class Grab {
public:
    /// Of a node that stays open as long. Nothing where somebody else has it, or the device is gone.
    static std::optional<Grab> of(int node) {
        return ::ioctl(node, EVIOCGRAB, 1) == 0 ? std::optional<Grab>(Grab(node)) : std::nullopt;
    }
    ~Grab() {
        if (_node >= 0) {
            ::ioctl(_node, EVIOCGRAB, 0);
        }
    }
    Grab(Grab &&other) noexcept : _node(std::exchange(other._node, -1)) {}
    Grab &operator=(Grab &&other) noexcept {
        std::swap(_node, other._node);
        return *this;
    }
    Grab(const Grab &) = delete;
    Grab &operator=(const Grab &) = delete;

private:
    explicit Grab(int node) : _node(node) {}

    int _node;
};

} // namespace barquell::tapd
