#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/kernel/EventReader.h"

#include <optional>
#include <vector>

namespace barquell::tapd {

/// A keyboard's evdev node, of which nothing but the modifier keys is ever heard. One thread.
class KernelKeyboard {
public:
    /// Nothing where the kernel does not hide the other keys (EVIOCSMASK, Linux 4.4).
    static std::optional<KernelKeyboard> of(FileDescriptor node);

    int node() const { return _node.get(); }
    ReadResult read(EventBatch &batch) const { return readEvents(_node.get(), batch); }

    /// What each modifier key is now, as if it had just been reported. The kernel names all keys that are
    /// down; the others are forgotten here.
    std::vector<evdev::InputEvent> modifiers() const;

private:
    explicit KernelKeyboard(FileDescriptor node) : _node(std::move(node)) {}

    FileDescriptor _node;
};

} // namespace barquell::tapd
