#pragma once

#include <unistd.h>

#include <utility>

namespace barquell {

/// Owns an open file; an invalid one owns nothing.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1) : _descriptor(descriptor) {}
    ~FileDescriptor() {
        if (isValid()) {
            ::close(_descriptor);
        }
    }
    FileDescriptor(FileDescriptor &&other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        std::swap(_descriptor, other._descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    bool isValid() const { return _descriptor >= 0; }
    int get() const { return _descriptor; }

private:
    int _descriptor;
};

} // namespace barquell
