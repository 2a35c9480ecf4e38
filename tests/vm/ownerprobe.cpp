#include "platform/linux/tapd/core/CloneDescription.h"
#include "platform/linux/tapd/kernel/DeviceQuery.h"
#include "platform/linux/tapd/kernel/Grab.h"
#include "platform/linux/tapd/kernel/KernelKeyboard.h"
#include "platform/linux/tapd/kernel/UinputDevice.h"

#include <cstdio>
#include <fcntl.h>
#include <filesystem>

// ownerprobe NODE KEYBOARD: do the owner types give back what they own, also where closing a descriptor would
// not? Prints a line a question; fails where an answer is no.
namespace {

using namespace barquell;
using namespace barquell::tapd;

int failures = 0;

void tell(const char *name, bool held) {
    std::printf("%s %s\n", held ? "ok" : "FAIL", name);
    failures += held ? 0 : 1;
}

FileDescriptor opened(const char *path) {
    return FileDescriptor(::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
}

bool canGrab(const char *path) {
    const FileDescriptor other = opened(path);
    return Grab::of(other.get()).has_value();
}

void probeGrab(const char *path) {
    const FileDescriptor node = opened(path);
    const FileDescriptor twin(::dup(node.get())); // the same open file, which stays open
    {
        auto grab = Grab::of(node.get());
        tell("a free bar can be grabbed", grab.has_value());
        tell("a grabbed bar cannot be grabbed", !canGrab(path));
        const Grab moved = std::move(*grab);
        grab.reset();
        tell("a grab that was moved from gives nothing back", !canGrab(path));
    }
    tell("a grab is given back though its file stays open", canGrab(path));
}

/// Another descriptor of the same open file as the device's.
FileDescriptor twinOfUinput() {
    for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code none;
        if (std::filesystem::read_symlink(entry.path(), none) == "/dev/uinput") {
            return FileDescriptor(::dup(std::stoi(entry.path().filename().string())));
        }
    }
    return FileDescriptor();
}

void probeUinput(const char *path) {
    const FileDescriptor node = opened(path);
    const auto description = describe(node.get());
    std::string place;
    FileDescriptor twin;
    {
        auto device = UinputDevice::create(cloneDescription(*description), kClonePhys);
        tell("a device can be made", device.has_value());
        place = "/sys/class/input/" + device->sysname();
        tell("it is there", std::filesystem::exists(place));
        twin = twinOfUinput();
        const UinputDevice moved = std::move(*device);
        device.reset();
        tell("it outlives what it was moved from", twin.isValid() && std::filesystem::exists(place));
    }
    tell("it goes with its owner though its file stays open", !std::filesystem::exists(place));
}

void probeKeyboard(const char *path) {
    const auto keyboard = KernelKeyboard::of(opened(path));
    tell("a keyboard's other keys can be hidden", keyboard.has_value());
    const auto modifiers = keyboard->modifiers();
    tell("it tells of modifier keys alone", modifiers.size() == 9);
    tell("what is no keyboard is refused", !KernelKeyboard::of(FileDescriptor()).has_value());
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        return 2;
    }
    probeGrab(argv[1]);
    probeUinput(argv[1]);
    probeKeyboard(argv[2]);
    return failures == 0 ? 0 : 1;
}
