#pragma once

#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace barquell::recording {

struct RecordedDevice {
    evdev::DeviceDescription description;  ///< its name is printable UTF-8, at most kMaximumName bytes
    std::vector<evdev::InputEvent> events; ///< in the order of the recording; times never decrease
};

/// What a reader found. Where something was wrong, everything before it is here and the complaint says in one
/// line what is wrong and where; an empty complaint means that the recording is whole. Only the first wrong
/// thing is told. Events that go back in time are wrong too, but are kept, with the time of the one before.
struct Recording {
    std::vector<RecordedDevice> devices;
    std::string complaint;
};

/// More events than this in one recording are refused (512 MiB of memory).
inline constexpr std::size_t kMaximumEvents = 32U << 20U;

/// More devices than this in one recording are refused.
inline constexpr std::size_t kMaximumDevices = 64;

/// Longer names are cut.
inline constexpr std::size_t kMaximumName = 1000;

/// `evemu-record` text: one device. Format: evemu's own description of its files, versions 1.0 to 1.3.
Recording readEvemu(std::string_view text);

/// `libinput record` YAML: one device or many.
Recording readLibinputRecord(std::string_view text);

/// Reads a file of either format, told apart by its contents. The complaint does not name the file.
Recording readRecording(const std::filesystem::path &file);

} // namespace barquell::recording
