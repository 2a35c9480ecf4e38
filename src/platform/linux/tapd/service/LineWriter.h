#pragma once

#include "platform/linux/FileDescriptor.h"

#include <string_view>

namespace barquell::tapd {

/// Writes lines to a descriptor that belongs to others as well, and never waits: a terminal that is stopped
/// or a pipe that nobody empties costs lines, not time. One thread.
class LineWriter {
public:
    /// One that is not open takes nothing.
    explicit LineWriter(int descriptor);

    /// With the end of line. False where it could not be taken now; it is then lost.
    bool write(std::string_view line) const;

private:
    // O_NONBLOCK belongs to the open file, and on the one that we were given it would change what the others
    // see of it.
    FileDescriptor _own; ///< the same pipe, terminal or file, opened anew; invalid where it cannot be
    int _given;
};

} // namespace barquell::tapd
