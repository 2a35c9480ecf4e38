#pragma once

#include <cstdint>
#include <optional>
#include <sys/types.h>

namespace barquell::tapd {

/// When the process began, in the kernel's ticks, which with its number names it for ever; nothing where it
/// has gone, or its number is now a process of another user. Any thread.
std::optional<std::uint64_t> startOf(pid_t process, uid_t user);

} // namespace barquell::tapd
