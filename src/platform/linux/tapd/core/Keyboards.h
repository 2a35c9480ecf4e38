#pragma once

#include "evdev/KeyMeaning.h"

#include <map>
#include <span>

namespace barquell::tapd {

/// The modifier word of all keyboards together. A keyboard is named by a number of the caller's choice. One
/// thread.
class Keyboards {
public:
    void add(int keyboard) { _keyboards[keyboard]; }
    void remove(int keyboard) { _keyboards.erase(keyboard); }
    void read(int keyboard, std::span<const evdev::InputEvent> events);

    ModifierFlags flags() const;

private:
    std::map<int, evdev::KeyMeaning> _keyboards;
};

} // namespace barquell::tapd
