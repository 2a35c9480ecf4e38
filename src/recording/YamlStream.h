#pragma once

#include "recording/ByteSource.h"

#include <yaml.h>

#include <memory>
#include <string>
#include <string_view>

namespace barquell::recording {

/// The events of a YAML text, one by one; no tree of it is ever built. libyaml keeps in memory what it has
/// not yet made an event of, so a text that goes on and on without one is refused.
class YamlStream {
public:
    enum class Kind {
        Scalar,
        MappingStart,
        SequenceStart,
        CollectionEnd,
        Document, ///< where a document begins or ends
        End,
        Broken, ///< this is no YAML; nothing can follow
    };

    /// The source has to outlive the stream.
    explicit YamlStream(const ByteSource &source);

    Kind next();

    [[nodiscard]] std::string_view
    text() const; ///< of a scalar; an alias, which recordings do not have, is an empty one
    [[nodiscard]] std::size_t line() const;
    /// Whether the text ends in the middle of a line that is no comment.
    [[nodiscard]] bool endsWithinLine() const { return _tail == Tail::Text; }
    [[nodiscard]] bool brokeAtEnd() const;
    /// Whether it broke because there was too much of it without an event.
    [[nodiscard]] bool isTooLong() const { return _tooLong; }
    /// Of what has been read so far.
    [[nodiscard]] std::size_t lastLine() const {
        return _tail == Tail::Blank && _lineCount > 1 ? _lineCount - 1 : _lineCount;
    }
    [[nodiscard]] const char *problem() const {
        return _parser->problem != nullptr ? _parser->problem : "not readable";
    }

private:
    enum class Tail { Blank, Comment, Text };
    /// What libyaml was given since the last event.
    struct Pending {
        std::size_t text = 0;     ///< bytes, those of comments left out
        std::size_t comments = 0; ///< lines
    };
    struct DeleteParser {
        void operator()(yaml_parser_t *parser) const;
    };
    struct DeleteEvent {
        void operator()(yaml_event_t *event) const { yaml_event_delete(event); }
    };

    static int readHandler(void *self, unsigned char *buffer, std::size_t size, std::size_t *length);
    bool refill();
    void noteTail(std::string_view piece);
    void shortenComments();
    bool isToBeGiven(char c);

    const ByteSource &_source;
    std::string _raw; ///< the beginning of a character that the last piece cut
    std::string _clean;
    std::size_t _given = 0; ///< how much of _clean libyaml has
    bool _sourceEnded = false;
    bool _tooLong = false;
    Pending _pending;
    Tail _givenLine = Tail::Blank; ///< what the line is that libyaml is being given
    Tail _tail = Tail::Blank;      ///< what the last line, as yet without an end, is
    std::size_t _lineCount = 1;
    std::unique_ptr<yaml_parser_t, DeleteParser> _parser;
    yaml_event_t _event{};
    std::unique_ptr<yaml_event_t, DeleteEvent> _eventGuard; ///< set while _event holds something
};

} // namespace barquell::recording
