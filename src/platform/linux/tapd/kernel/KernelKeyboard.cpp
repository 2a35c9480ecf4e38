#include "platform/linux/tapd/kernel/KernelKeyboard.h"

#include "evdev/KeyMeaning.h"
#include "platform/linux/tapd/kernel/DeviceQuery.h"

#include <linux/input.h>
#include <sys/ioctl.h>

namespace barquell::tapd {

namespace {

// The kernel wants whole longs.
using CodeMask = std::array<std::uint64_t, (evdev::kKeyMax + 1) / 64>;

void allow(CodeMask &mask, std::size_t code) {
    mask.at(code / 64) |= std::uint64_t{1} << code % 64;
}

bool setMask(int node, std::uint32_t type, const CodeMask &codes) {
    input_mask mask{};
    mask.type = type;
    mask.codes_size = sizeof codes;
    mask.codes_ptr = reinterpret_cast<std::uintptr_t>(codes.data());
    return ::ioctl(node, EVIOCSMASK, &mask) >= 0;
}

bool hideAllButModifiers(int node) {
    CodeMask types{}; // of type 0, EV_SYN, the codes are event types
    allow(types, EV_KEY);
    CodeMask keys{};
    for (std::uint16_t key = 0; key <= evdev::kKeyMax; ++key) {
        if (evdev::modifierFlagsOf(key) != 0) {
            allow(keys, key);
        }
    }
    // Scan codes (EV_MSC) would tell which key it was as well, so the types come first.
    return setMask(node, EV_SYN, types) && setMask(node, EV_KEY, keys);
}

} // namespace

std::optional<KernelKeyboard> KernelKeyboard::of(FileDescriptor node) {
    if (!hideAllButModifiers(node.get())) {
        return std::nullopt;
    }
    forgetEvents(node.get()); // keys that were struck before the mask was there
    return KernelKeyboard(std::move(node));
}

std::vector<evdev::InputEvent> KernelKeyboard::modifiers() const {
    std::vector<evdev::InputEvent> events;
    const auto held = heldKeys(_node.get());
    for (std::uint16_t key = 0; held && key <= evdev::kKeyMax; ++key) {
        if (evdev::modifierFlagsOf(key) != 0) {
            events.push_back({0, evdev::kEvKey, key, held->test(key) ? 1 : 0});
        }
    }
    return events;
}

} // namespace barquell::tapd
