#include "support/CountedAllocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

} // namespace

std::size_t barquell::test::allocations() {
    return count;
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory): beneath this there are no owners
void *operator new(std::size_t size) {
    ++count;
    if (void *memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept {
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
// NOLINTEND(cppcoreguidelines-owning-memory)
