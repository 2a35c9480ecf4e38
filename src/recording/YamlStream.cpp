#include "recording/YamlStream.h"

#include "recording/CleanText.h"

#include <new>

namespace barquell::recording {

namespace {

constexpr std::size_t kPieceSize = 16U << 10U;

} // namespace

void YamlStream::DeleteParser::operator()(yaml_parser_t *parser) const {
    yaml_parser_delete(parser);
    std::default_delete<yaml_parser_t>()(parser);
}

YamlStream::YamlStream(const ByteSource &source) : source_(source) {
    auto parser = std::make_unique<yaml_parser_t>();
    if (yaml_parser_initialize(parser.get()) == 0) {
        throw std::bad_alloc();
    }
    parser_.reset(parser.release());
    yaml_parser_set_encoding(parser_.get(), YAML_UTF8_ENCODING);
    yaml_parser_set_input(parser_.get(), &YamlStream::readHandler, this);
}

YamlStream::Kind YamlStream::next() {
    eventGuard_.reset();
    if (yaml_parser_parse(parser_.get(), &event_) == 0) {
        return Kind::Broken;
    }
    eventGuard_.reset(&event_);
    switch (event_.type) {
    case YAML_SCALAR_EVENT:
    case YAML_ALIAS_EVENT:
        return Kind::Scalar;
    case YAML_MAPPING_START_EVENT:
        return Kind::MappingStart;
    case YAML_SEQUENCE_START_EVENT:
        return Kind::SequenceStart;
    case YAML_MAPPING_END_EVENT:
    case YAML_SEQUENCE_END_EVENT:
        return Kind::CollectionEnd;
    case YAML_STREAM_START_EVENT:
    case YAML_DOCUMENT_START_EVENT:
    case YAML_DOCUMENT_END_EVENT:
        return Kind::Document;
    case YAML_NO_EVENT:
    case YAML_STREAM_END_EVENT:
        break;
    }
    return Kind::End;
}

std::string_view YamlStream::text() const {
    if (event_.type != YAML_SCALAR_EVENT) {
        return {};
    }
    const auto &scalar = event_.data.scalar;
    return {reinterpret_cast<const char *>(scalar.value), scalar.length};
}

std::size_t YamlStream::line() const {
    const bool broken = parser_->error != YAML_NO_ERROR;
    return (broken ? parser_->problem_mark.line : event_.start_mark.line) + 1;
}

bool YamlStream::brokeAtEnd() const {
    return sourceEnded_ && line() >= lineCount_;
}

int YamlStream::readHandler(void *self, unsigned char *buffer, std::size_t size, std::size_t *length) {
    auto &stream = *static_cast<YamlStream *>(self);
    try {
        while (stream.given_ == stream.clean_.size() && stream.refill()) {
        }
    } catch (const std::bad_alloc &) {
        return 0; // nothing may be thrown through libyaml
    }
    *length = stream.clean_.copy(reinterpret_cast<char *>(buffer), size, stream.given_);
    stream.given_ += *length;
    return 1;
}

/// libyaml refuses a whole text for one byte that is no UTF-8, but such a byte in a device's name is no
/// reason to lose the recording: it is cleaned before.
bool YamlStream::refill() {
    if (sourceEnded_) {
        return false;
    }
    const std::size_t kept = raw_.size();
    raw_.resize(kept + kPieceSize);
    const std::size_t size = source_(std::span(raw_).subspan(kept));
    raw_.resize(kept + size);
    sourceEnded_ = size == 0;
    noteTail(std::string_view(raw_).substr(kept));
    clean_.clear();
    given_ = 0;
    raw_.erase(0, appendCleanLines(clean_, raw_, sourceEnded_));
    return true;
}

void YamlStream::noteTail(std::string_view piece) {
    lineCount_ += static_cast<std::size_t>(std::count(piece.begin(), piece.end(), '\n'));
    if (const std::size_t lineEnd = piece.rfind('\n'); lineEnd != std::string_view::npos) {
        tail_ = Tail::Blank;
        piece.remove_prefix(lineEnd + 1);
    }
    const std::size_t first = piece.find_first_not_of(" \t");
    if (tail_ == Tail::Blank && first != std::string_view::npos) {
        tail_ = piece[first] == '#' ? Tail::Comment : Tail::Text;
    }
}

} // namespace barquell::recording
