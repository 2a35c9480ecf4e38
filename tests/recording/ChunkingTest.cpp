#include "Data.h"

#include "recording/Readers.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace barquell::recording {
namespace {

std::string textOf(const char *file) {
    std::ifstream in(std::filesystem::path(BARQUELL_TEST_DATA) / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Hands a text out in pieces of the given sizes, over and over.
ByteSource chunked(const std::string &text, const std::vector<std::uint16_t> &sizes) {
    return [&text, &sizes, at = std::size_t{0}, piece = std::size_t{0}](std::span<char> buffer) mutable {
        const std::size_t wanted = sizes.empty() ? buffer.size() : sizes[piece++ % sizes.size()];
        const std::size_t size = text.copy(buffer.data(), std::min(wanted, buffer.size()), at);
        at += size;
        return size;
    };
}

void expectSame(const Recording &whole, const Recording &pieces) {
    RC_ASSERT(whole.complaint == pieces.complaint);
    RC_ASSERT(whole.devices.size() == pieces.devices.size());
    for (std::size_t i = 0; i < whole.devices.size(); ++i) {
        RC_ASSERT(whole.devices[i].events == pieces.devices[i].events);
    }
}

std::vector<std::uint16_t> someSizes() {
    return *rc::gen::container<std::vector<std::uint16_t>>(rc::gen::inRange<std::uint16_t>(1, 3000));
}

TEST(Chunking, ARecordingReadInAnyPiecesIsTheSame) {
    const std::string evemu = textOf("t2-bar.evemu");
    const std::string yaml = textOf("palm-session.yml");
    const Recording evemuWhole = readEvemu(evemu);
    const Recording yamlWhole = readLibinputRecord(yaml);
    ASSERT_FALSE(evemuWhole.devices.empty());
    ASSERT_FALSE(yamlWhole.devices.empty());
    ASSERT_TRUE(rc::check([&] {
        const auto sizes = someSizes();
        expectSame(evemuWhole, readEvemu(chunked(evemu, sizes)));
        expectSame(yamlWhole, readLibinputRecord(chunked(yaml, sizes)));
    }));
}

} // namespace
} // namespace barquell::recording
