#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace barquell::tapd {

/// What the log has been told of a user's clients. One that tries again every few seconds is told of once,
/// until something has changed. One thread.
class ToldOnce {
public:
    /// Few users have clients; where there are more the oldest entry is told again.
    static constexpr std::size_t kRoom = 32;

    /// Was it not told yet? From now on it is. The reason is a literal.
    bool isNews(std::uint32_t user, std::string_view reason);

    void forget(std::uint32_t user);
    void forget(std::string_view reason);

private:
    struct Entry {
        std::uint32_t user = 0;
        std::string_view reason; ///< empty: nothing
    };

    std::array<Entry, kRoom> _entries;
    std::size_t _next = 0;
};

} // namespace barquell::tapd
