#include "recording/EvemuWriter.h"

#include "recording/CleanText.h"

#include <array>
#include <cinttypes>
#include <cstdio>

namespace barquell::recording {

namespace {

constexpr std::int64_t kMicroseconds = 1'000'000;
constexpr std::size_t kBitsPerLine = 64;

template <typename... Values>
void print(std::ostream &out, const char *format, Values... values) {
    std::array<char, 128> line{}; // no line but the name's is longer
    const int size = std::snprintf(line.data(), line.size(), format, values...);
    out.write(line.data(), size);
}

/// Eight bytes a line, the lowest bit first, up to the last that is set.
template <std::size_t Size>
void writeBits(std::ostream &out, const char *head, const std::bitset<Size> &bits) {
    std::size_t end = Size;
    while (end > 0 && !bits.test(end - 1)) {
        --end;
    }
    for (std::size_t first = 0; first < end; first += kBitsPerLine) {
        out << head;
        for (std::size_t byte = first; byte < first + kBitsPerLine; byte += 8) {
            unsigned value = 0;
            for (std::size_t bit = 0; bit < 8 && byte + bit < Size; ++bit) {
                value |= bits.test(byte + bit) ? 1U << bit : 0;
            }
            print(out, " %02x", value);
        }
        out << '\n';
    }
}

void writeCodes(std::ostream &out, const evdev::DeviceDescription &device) {
    out << "B: 00 0b 00 00 00 00 00 00 00\n"; // every device has the same EV_SYN codes
    auto codes = device.otherCodes;
    codes[evdev::kEvKey] = device.keys;
    auto &axes = codes[evdev::kEvAbs];
    axes.reset();
    for (const auto &[code, axis] : device.axes) {
        axes.set(code);
    }
    for (const auto &[type, bits] : codes) {
        std::array<char, 16> head{};
        std::snprintf(head.data(), head.size(), "B: %02x", static_cast<unsigned>(type));
        writeBits(out, head.data(), bits);
    }
}

} // namespace

void writeEvemuHeader(std::ostream &out, const evdev::DeviceDescription &device) {
    out << "# EVEMU 1.3\nN: " << cleanName(device.name) << '\n';
    print(out, "I: %04x %04x %04x %04x\n", static_cast<unsigned>(device.bus),
          static_cast<unsigned>(device.vendor), static_cast<unsigned>(device.product),
          static_cast<unsigned>(device.version));
    writeBits(out, "P:", device.properties);
    writeCodes(out, device);
    for (const auto &[code, axis] : device.axes) {
        print(out, "A: %02x %d %d %d %d %d\n", static_cast<unsigned>(code), axis.minimum, axis.maximum,
              axis.fuzz, axis.flat, axis.resolution);
    }
}

void writeEvemuEvent(std::ostream &out, const evdev::InputEvent &event) {
    print(out, "E: %" PRId64 ".%06d %04x %04x %04d\n", event.time / kMicroseconds,
          static_cast<int>(event.time % kMicroseconds), static_cast<unsigned>(event.type),
          static_cast<unsigned>(event.code), event.value);
}

} // namespace barquell::recording
