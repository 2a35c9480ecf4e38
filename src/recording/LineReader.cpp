#include "recording/LineReader.h"

#include <cstring>

namespace barquell::recording {

namespace {

constexpr std::size_t kBufferSize = 32U << 10U;

} // namespace

LineReader::LineReader(const ByteSource &source) : _source(source), _buffer(kBufferSize) {}

LineReader::Found LineReader::next(std::string_view &line) {
    for (;;) {
        line = std::string_view(_buffer.data() + _begin, _end - _begin);
        const std::size_t lineEnd = line.find('\n');
        if (lineEnd != std::string_view::npos) {
            _begin += lineEnd + 1;
            line = line.substr(0, lineEnd);
            if (line.ends_with('\r')) {
                line.remove_suffix(1);
            }
            return Found::Line;
        }
        if (line.size() == _buffer.size()) {
            return Found::LongLine;
        }
        if (!fetch()) {
            _begin = _end;
            return line.empty() ? Found::Nothing : Found::CutLine;
        }
    }
}

bool LineReader::fetch() {
    const std::size_t kept = _end - _begin;
    std::memmove(_buffer.data(), _buffer.data() + _begin, kept);
    _begin = 0;
    _end = kept + _source(std::span(_buffer).subspan(kept));
    return _end > kept;
}

} // namespace barquell::recording
