#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

namespace barquell::recording {

/// Fills the front of a buffer and says with how many bytes; 0 is the end. Recordings are read piece by
/// piece, since one can be many times larger than the events in it.
using ByteSource = std::function<std::size_t(std::span<char> buffer)>;

/// The text has to outlive the source.
inline ByteSource textSource(std::string_view text) {
    return [text](std::span<char> buffer) mutable {
        const std::size_t size = text.copy(buffer.data(), buffer.size());
        text.remove_prefix(size);
        return size;
    };
}

} // namespace barquell::recording
