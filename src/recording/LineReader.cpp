#include "recording/LineReader.h"

#include <cstring>

namespace barquell::recording {

namespace {

constexpr std::size_t kBufferSize = 32U << 10U;

} // namespace

LineReader::LineReader(const ByteSource &source) : source_(source), buffer_(kBufferSize) {}

LineReader::Found LineReader::next(std::string_view &line) {
    for (;;) {
        line = std::string_view(buffer_.data() + begin_, end_ - begin_);
        const std::size_t lineEnd = line.find('\n');
        if (lineEnd != std::string_view::npos) {
            begin_ += lineEnd + 1;
            line = line.substr(0, lineEnd);
            if (line.ends_with('\r')) {
                line.remove_suffix(1);
            }
            return Found::Line;
        }
        if (line.size() == buffer_.size()) {
            return Found::LongLine;
        }
        if (!fetch()) {
            begin_ = end_;
            return line.empty() ? Found::Nothing : Found::CutLine;
        }
    }
}

bool LineReader::fetch() {
    const std::size_t kept = end_ - begin_;
    std::memmove(buffer_.data(), buffer_.data() + begin_, kept);
    begin_ = 0;
    end_ = kept + source_(std::span(buffer_).subspan(kept));
    return end_ > kept;
}

} // namespace barquell::recording
