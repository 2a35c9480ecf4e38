#pragma once

#include <cstddef>

namespace barquell::test {

/// How often memory was allocated so far. Where CountedAllocations.cpp is linked in, each way to allocate
/// that the event path could take is counted.
std::size_t allocations();

} // namespace barquell::test
