#include "evdev/Devices.h"
#include "platform/linux/tapd/kernel/UinputDevice.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/input.h>
#include <poll.h>
#include <string>
#include <thread>
#include <vector>

// latencyprobe FRAMES: makes a bar, prints its kernel name, and then reads lines from standard input, each
// the name of a measurement and a node to be read. For each it moves a finger on the bar FRAMES times and
// prints how long after the writing of a frame the reader of that node had it, in microseconds: NAME and the
// time of each frame.
namespace {

using namespace barquell;
using Clock = std::chrono::steady_clock;

bool send(const tapd::UinputDevice &device, std::vector<evdev::InputEvent> events) {
    events.push_back({0, evdev::kEvSyn, evdev::kSynReport, 0});
    return device.write(events);
}

bool putFinger(const tapd::UinputDevice &device, bool down) {
    return send(device, {{0, evdev::kEvAbs, evdev::kAbsMtTrackingId, down ? 1 : -1},
                         {0, evdev::kEvKey, evdev::kBtnTouch, down ? 1 : 0}});
}

/// Reads until the position is there; false after a second.
bool awaitPosition(int node, std::int32_t x) {
    for (;;) {
        pollfd ready{node, POLLIN, 0};
        if (::poll(&ready, 1, 1000) <= 0) {
            return false;
        }
        std::array<input_event, 64> events;
        const ssize_t bytes = ::read(node, events.data(), sizeof events);
        const std::size_t count = bytes > 0 ? static_cast<std::size_t>(bytes) / sizeof(input_event) : 0;
        const auto got = std::span(events).first(count);
        if (std::any_of(got.begin(), got.end(), [x](const input_event &event) {
                return event.type == EV_ABS && event.code == ABS_MT_POSITION_X && event.value == x;
            })) {
            return true;
        }
        if (bytes == 0) {
            return false;
        }
    }
}

bool measure(const tapd::UinputDevice &device, const std::string &name, const std::string &path, int frames) {
    const FileDescriptor node(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    std::vector<double> times;
    putFinger(device, true);
    for (int i = 0; i < frames; ++i) {
        const std::int32_t x = 100 + i % 30000;
        const auto start = Clock::now();
        send(device, {{0, evdev::kEvAbs, evdev::kAbsMtPositionX, x}, {0, evdev::kEvAbs, evdev::kAbsX, x}});
        if (!awaitPosition(node.get(), x)) {
            std::printf("%s lost frame %d\n", name.c_str(), i);
            return false;
        }
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
        std::this_thread::sleep_for(std::chrono::milliseconds(1)); // a bar rests between its frames
    }
    putFinger(device, false);
    std::printf("%s", name.c_str());
    for (const double time : times) {
        std::printf(" %.1f", time);
    }
    std::printf("\n");
    return true;
}

} // namespace

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const int frames = argc == 2 ? std::atoi(argv[1]) : 0;
    const auto device = tapd::UinputDevice::create(test::t2Bar(), "latencyprobe");
    if (!device || frames <= 0) {
        std::fprintf(stderr, "usage: latencyprobe FRAMES, as root\n");
        return 2;
    }
    std::printf("%s\n", device->sysname().c_str());
    std::array<char, 256> line;
    while (std::fgets(line.data(), line.size(), stdin)) {
        const std::string text(line.data());
        const std::size_t space = text.find(' ');
        if (space == std::string::npos ||
            !measure(*device, text.substr(0, space), text.substr(space + 1, text.find('\n') - space - 1),
                     frames)) {
            return 1;
        }
    }
    return 0;
}
