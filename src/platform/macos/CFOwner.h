#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace barquell {

/// Owns one reference to a CoreFoundation object and releases it. Takes over what a Create or Copy function
/// returns; null is no object.
template <typename Ref>
class CFOwner {
public:
    CFOwner() = default;
    explicit CFOwner(Ref created) : _ref(created) {}
    ~CFOwner() { reset(); }
    CFOwner(CFOwner &&other) noexcept : _ref(std::exchange(other._ref, nullptr)) {}
    CFOwner &operator=(CFOwner &&other) noexcept {
        std::swap(_ref, other._ref);
        return *this;
    }
    CFOwner(const CFOwner &) = delete;
    CFOwner &operator=(const CFOwner &) = delete;

    Ref get() const { return _ref; }
    explicit operator bool() const { return _ref != nullptr; }

    void reset() {
        if (_ref) {
            CFRelease(_ref);
            _ref = nullptr;
        }
    }

private:
    Ref _ref = nullptr;
};

} // namespace barquell
