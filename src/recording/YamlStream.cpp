#include "recording/YamlStream.h"

#include "recording/CleanText.h"

#include <new>

namespace barquell::recording {

namespace {

constexpr std::size_t kPieceSize = 16U << 10U;

// A recorder writes a line at a time, and after each there is an event; between two of them there may be as
// many comments as a quiet night has seconds.
constexpr std::size_t kMaximumText = 1U << 20U;
constexpr std::size_t kMaximumComments = 1U << 23U;

} // namespace

void YamlStream::DeleteParser::operator()(yaml_parser_t *parser) const {
    yaml_parser_delete(parser);
    std::default_delete<yaml_parser_t>()(parser);
}

YamlStream::YamlStream(const ByteSource &source) : _source(source) {
    auto parser = std::make_unique<yaml_parser_t>();
    if (yaml_parser_initialize(parser.get()) == 0) {
        throw std::bad_alloc();
    }
    _parser.reset(parser.release());
    yaml_parser_set_encoding(_parser.get(), YAML_UTF8_ENCODING);
    yaml_parser_set_input(_parser.get(), &YamlStream::readHandler, this);
}

YamlStream::Kind YamlStream::next() {
    _eventGuard.reset();
    if (yaml_parser_parse(_parser.get(), &_event) == 0) {
        return Kind::Broken;
    }
    _eventGuard.reset(&_event);
    _pending = {};
    switch (_event.type) {
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
    if (_event.type != YAML_SCALAR_EVENT) {
        return {};
    }
    const auto &scalar = _event.data.scalar;
    return {reinterpret_cast<const char *>(scalar.value), scalar.length};
}

std::size_t YamlStream::line() const {
    if (_tooLong) { // libyaml marks no place for what we break off
        return _parser->mark.line + 1;
    }
    const bool broken = _parser->error != YAML_NO_ERROR;
    return (broken ? _parser->problem_mark.line : _event.start_mark.line) + 1;
}

bool YamlStream::brokeAtEnd() const {
    return _sourceEnded && line() >= _lineCount;
}

int YamlStream::readHandler(void *self, unsigned char *buffer, std::size_t size, std::size_t *length) {
    auto &stream = *static_cast<YamlStream *>(self);
    try {
        while (stream._given == stream._clean.size() && stream.refill()) {
        }
    } catch (const std::bad_alloc &) {
        return 0; // nothing may be thrown through libyaml
    }
    if (stream._tooLong) {
        return 0;
    }
    *length = stream._clean.copy(reinterpret_cast<char *>(buffer), size, stream._given);
    stream._given += *length;
    return 1;
}

/// libyaml refuses a whole text for one byte that is no UTF-8, but such a byte in a device's name is no
/// reason to lose the recording: it is cleaned before.
bool YamlStream::refill() {
    if (_sourceEnded) {
        return false;
    }
    const std::size_t kept = _raw.size();
    _raw.resize(kept + kPieceSize);
    const std::size_t size = _source(std::span(_raw).subspan(kept));
    _raw.resize(kept + size);
    _sourceEnded = size == 0;
    const std::string_view all = _raw;
    noteTail(all.substr(kept));
    _clean.clear();
    _given = 0;
    _raw.erase(0, appendCleanLines(_clean, _raw, _sourceEnded));
    shortenComments();
    _tooLong = _pending.text > kMaximumText || _pending.comments > kMaximumComments;
    return true;
}

/// Of a line that is a comment only the '#' is handed on. Were it all kept, a text of many lines that begin
/// with '#' could not be told from comments, which may go on for long and cost nothing.
void YamlStream::shortenComments() {
    std::size_t kept = 0;
    for (const char c : _clean) {
        if (isToBeGiven(c)) {
            _clean[kept++] = c;
        }
    }
    _clean.resize(kept);
}

bool YamlStream::isToBeGiven(char c) {
    const bool lineEnd = c == '\n' || c == '\r';
    if (_givenLine == Tail::Comment && !lineEnd) {
        return false;
    }
    if (_givenLine == Tail::Blank && c == '#') {
        _givenLine = Tail::Comment;
        ++_pending.comments;
        return true;
    }
    _pending.text += _givenLine == Tail::Comment ? 0 : 1;
    if (lineEnd) {
        _givenLine = Tail::Blank;
    } else if (c != ' ' && c != '\t') {
        _givenLine = Tail::Text;
    }
    return true;
}

void YamlStream::noteTail(std::string_view piece) {
    _lineCount += static_cast<std::size_t>(std::count(piece.begin(), piece.end(), '\n'));
    if (const std::size_t lineEnd = piece.rfind('\n'); lineEnd != std::string_view::npos) {
        _tail = Tail::Blank;
        piece.remove_prefix(lineEnd + 1);
    }
    const std::size_t first = piece.find_first_not_of(" \t");
    if (_tail == Tail::Blank && first != std::string_view::npos) {
        _tail = piece[first] == '#' ? Tail::Comment : Tail::Text;
    }
}

} // namespace barquell::recording
