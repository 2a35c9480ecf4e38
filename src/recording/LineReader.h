#pragma once

#include "recording/ByteSource.h"

#include <string_view>
#include <vector>

namespace barquell::recording {

/// Splits a source into lines, without their ends ("\n" or "\r\n").
class LineReader {
public:
    enum class Found {
        Line,
        CutLine,  ///< the last one, with no line's end after it
        LongLine, ///< none that anyone would write; it is not given, and reading cannot go on
        Nothing,
    };

    /// The source has to outlive the reader.
    explicit LineReader(const ByteSource &source);

    /// The line is good until the next call.
    Found next(std::string_view &line);

private:
    bool fetch();

    const ByteSource &_source;
    std::vector<char> _buffer;
    std::size_t _begin = 0;
    std::size_t _end = 0;
};

} // namespace barquell::recording
