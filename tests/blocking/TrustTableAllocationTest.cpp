#include "blocking/TrustedProcessChecker.h"
#include "support/Place.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

bool memoryIsOut = false;

} // namespace

void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept {
    try {
        return memoryIsOut ? nullptr : ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

namespace barquell::test {

TEST(TrustTableAllocationTest, WithoutMemoryForTheObserversTheProcessEnds) {
    place();
    EXPECT_EXIT(
        {
            memoryIsOut = true;
            TrustedProcessChecker::isTrusted();
        },
        testing::ExitedWithCode(255), "Failed to allocate observers table");
}

} // namespace barquell::test
