#include "Promises.h"

#include "recording/EvemuWriter.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace barquell;
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const recording::Recording recording = recording::readEvemu(text);
    fuzz::requirePromises(recording);
    fuzz::require(recording.devices.size() <= 1, "the format has one device");
    if (recording.devices.empty()) {
        return 0;
    }
    std::ostringstream out;
    recording::writeEvemuHeader(out, recording.devices[0].description);
    for (const evdev::InputEvent &event : recording.devices[0].events) {
        recording::writeEvemuEvent(out, event);
    }
    const recording::Recording again = recording::readEvemu(out.str());
    fuzz::require(again.complaint.empty(), "what is written is whole");
    fuzz::require(again.devices.size() == 1 && fuzz::sameDevice(recording.devices[0], again.devices[0]),
                  "what is written is what was read");
    return 0;
}
