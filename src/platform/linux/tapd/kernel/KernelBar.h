#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/core/Ports.h"
#include "platform/linux/tapd/kernel/CloneYard.h"
#include "platform/linux/tapd/kernel/EventReader.h"
#include "platform/linux/tapd/kernel/Grab.h"
#include "platform/linux/tapd/kernel/UinputDevice.h"

namespace barquell::tapd {

/// A bar's evdev node. One thread.
class KernelBar final : public BarPort {
public:
    KernelBar(FileDescriptor node, evdev::DeviceDescription description, CloneYard &yard);

    int node() const { return _node.get(); }
    const evdev::DeviceDescription &description() const { return _description; }

    /// The kernel's name of the clone, such as input12; empty where there is none.
    std::string cloneSysname() const { return _clone ? _clone->sysname() : std::string(); }

    ReadResult read(EventBatch &batch) const { return readEvents(_node.get(), batch); }

    std::optional<BarState> state() override;
    bool grab() override;
    void ungrab() override { _grab.reset(); }
    bool createClone() override;
    void destroyClone() override;
    bool sendToClone(std::span<const evdev::InputEvent> events) override;

private:
    FileDescriptor _node;
    evdev::DeviceDescription _description;
    std::optional<Grab> _grab; // goes before the node
    std::optional<UinputDevice> _clone;
    CloneYard *_yard;
};

} // namespace barquell::tapd
