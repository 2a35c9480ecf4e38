#include "Data.h"

#include "recording/EvemuWriter.h"
#include "recording/Intake.h"
#include "recording/Readers.h"

#include <sys/resource.h>

#include <chrono>
#include <iostream>

#if defined(__SANITIZE_ADDRESS__)
#define BARQUELL_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BARQUELL_SANITIZED 1
#endif
#endif

namespace barquell::recording {
namespace {

#ifdef BARQUELL_SANITIZED
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

std::size_t peakMegabytes() {
    struct rusage usage {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) / 1024;
}

/// A text that is made while it is read: a head, then a piece again and again.
ByteSource endless(std::string_view head, std::string_view piece, std::size_t times) {
    return [=, text = head, left = times](std::span<char> buffer) mutable {
        std::size_t size = 0;
        while (size < buffer.size() && (!text.empty() || left > 0)) {
            if (text.empty()) {
                text = piece;
                --left;
            }
            const std::size_t taken = text.copy(buffer.data() + size, buffer.size() - size);
            text.remove_prefix(taken);
            size += taken;
        }
        return size;
    };
}

TEST(Volume, TenMillionEventsAreReadWithinBounds) {
    if (kSanitized) {
        GTEST_SKIP() << "the sanitizers' time and memory say nothing";
    }
    constexpr std::size_t kEvents = 10'000'000;
    const std::filesystem::path file = testing::TempDir() + "ten-million.evemu";
    {
        std::ofstream out(file, std::ios::binary);
        evdev::DeviceDescription device;
        device.name = "A bar";
        writeEvemuHeader(out, device);
        for (std::size_t i = 0; i < kEvents; ++i) {
            const auto number = static_cast<std::int32_t>(i);
            writeEvemuEvent(out, {static_cast<std::int64_t>(i) * 1000, 3, 0x35, number % 32768});
        }
    }
    const std::size_t before = peakMegabytes();
    const auto start = std::chrono::steady_clock::now();
    const Recording recording = readRecording(file);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    const std::size_t memory = peakMegabytes() - before;
    std::filesystem::remove(file);
    std::cout << kEvents << " events in " << time.count() << " s, " << memory << " MiB\n";
    EXPECT_EQ(recording.complaint, "");
    ASSERT_EQ(recording.devices.at(0).events.size(), kEvents);
    EXPECT_EQ(recording.devices[0].events.back(),
              (evdev::InputEvent{(kEvents - 1) * 1000, 3, 0x35, (kEvents - 1) % 32768}));
    EXPECT_LT(time.count(), 10.0);
    EXPECT_LT(memory, 500U); // the events, and for a moment those of the vector before it grew
}

TEST(Volume, TheFormatsWithoutEventsCostNoMemory) {
    constexpr std::size_t kLines = kSanitized ? 1U << 16U : 1U << 22U;
    const std::size_t before = peakMegabytes();
    const Recording evemu = readEvemu(endless(kEvemuHead, "# nothing happens\n", kLines));
    EXPECT_EQ(evemu.complaint, "");
    const Recording yaml = readLibinputRecord(endless(kYamlHead, "# nothing happens\n", kLines));
    EXPECT_EQ(yaml.complaint, "");
    EXPECT_LT(peakMegabytes() - before, 20U);
}

struct EndlessText {
    const char *name;
    std::string_view head;
    std::string_view piece;
};

class VolumeOfOneText : public testing::TestWithParam<EndlessText> {};

TEST_P(VolumeOfOneText, IsRefusedWithinBounds) {
    constexpr std::size_t kBytes = 400U << 20U;
    const std::string head = kYamlHead + kYamlEvents + std::string(GetParam().head); // 22 lines and this one
    std::size_t taken = 0;
    const ByteSource text = endless(head, GetParam().piece, kBytes / GetParam().piece.size());
    const std::size_t before = peakMegabytes();
    const Recording recording = readLibinputRecord([&](std::span<char> buffer) {
        const std::size_t size = text(buffer);
        taken += size;
        return size;
    });
    EXPECT_THAT(recording.complaint, testing::MatchesRegex("a text that is too long at line [0-9]+"));
    EXPECT_THAT(recording.devices.at(0).events, testing::SizeIs(2));
    EXPECT_LT(taken, kBytes / 4);
    EXPECT_LT(peakMegabytes() - before, kSanitized ? 200U : 40U);
}

INSTANTIATE_TEST_SUITE_P(Each, VolumeOfOneText,
                         testing::Values(EndlessText{"Plain", "    - ", "xxxxxxxxxxxxxxx"},
                                         EndlessText{"Quoted", "    - \"", "xxxxxxxxxxxxxxx"},
                                         EndlessText{"Anchor", "    - &", "xxxxxxxxxxxxxxx"},
                                         EndlessText{"Tag", "    - !", "xxxxxxxxxxxxxxx"},
                                         EndlessText{"Block", "    - |\n", "      x\n"},
                                         EndlessText{"BlockOfWhatLooksLikeComments", "    - |\n",
                                                     "      #\n"},
                                         EndlessText{"BlankLines", "    - |\n      x\n", "\n"}),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST(Volume, ATextOfWhatLooksLikeCommentsHasAnEndToo) {
    const std::size_t before = peakMegabytes();
    const Recording recording = readLibinputRecord(endless("--- \"", "#\n", 1U << 25U));
    EXPECT_THAT(recording.complaint, testing::StartsWith("a text that is too long"));
    EXPECT_LT(peakMegabytes() - before, kSanitized ? 400U : 60U);
}

TEST(Volume, ManyEventsAreNoLongText) {
    constexpr std::size_t kItems = 50'000; // several MiB
    const Recording recording =
        readLibinputRecord(endless(kYamlHead, "  - evdev:\n    - [1, 0, 3, 47, 1] # EV_ABS\n", kItems));
    EXPECT_EQ(recording.complaint, "");
    EXPECT_EQ(recording.devices.at(0).events.size(), kItems);
}

TEST(Volume, ALongCommentIsNoText) {
    const std::string head = kYamlHead + kYamlEvents + "  # ";
    const Recording recording = readLibinputRecord(endless(head, "and so on, ", 1U << 18U));
    EXPECT_EQ(recording.complaint, "");
    EXPECT_THAT(recording.devices.at(0).events, testing::SizeIs(2));
}

TEST(Volume, OneEventTooManyIsRefused) {
    Intake intake;
    ASSERT_TRUE(intake.beginDevice(1));
    if (kSanitized) {
        GTEST_SKIP() << "takes too long under the sanitizers";
    }
    for (std::size_t i = 0; i < kMaximumEvents; ++i) {
        ASSERT_TRUE(intake.add({.seconds = 1}, i + 2));
    }
    EXPECT_FALSE(intake.add({.seconds = 1}, kMaximumEvents + 2));
    const Recording recording = intake.take();
    EXPECT_EQ(recording.complaint, "too many events at line " + std::to_string(kMaximumEvents + 2));
    EXPECT_EQ(recording.devices.at(0).events.size(), kMaximumEvents);
}

} // namespace
} // namespace barquell::recording
