#pragma once

#include "recording/ByteSource.h"

#include <yaml.h>

#include <memory>
#include <string>
#include <string_view>

namespace barquell::recording {

/// The events of a YAML text, one by one; no tree of it is ever built.
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
    [[nodiscard]] bool endsWithinLine() const { return tail_ == Tail::Text; }
    [[nodiscard]] bool brokeAtEnd() const;
    /// Of what has been read so far.
    [[nodiscard]] std::size_t lastLine() const {
        return tail_ == Tail::Blank && lineCount_ > 1 ? lineCount_ - 1 : lineCount_;
    }
    [[nodiscard]] const char *problem() const {
        return parser_->problem != nullptr ? parser_->problem : "not readable";
    }

private:
    enum class Tail { Blank, Comment, Text };
    struct DeleteParser {
        void operator()(yaml_parser_t *parser) const;
    };
    struct DeleteEvent {
        void operator()(yaml_event_t *event) const { yaml_event_delete(event); }
    };

    static int readHandler(void *self, unsigned char *buffer, std::size_t size, std::size_t *length);
    bool refill();
    void noteTail(std::string_view piece);

    const ByteSource &source_;
    std::string raw_; ///< the beginning of a character that the last piece cut
    std::string clean_;
    std::size_t given_ = 0; ///< how much of clean_ libyaml has
    bool sourceEnded_ = false;
    Tail tail_ = Tail::Blank; ///< what the last line, as yet without an end, is
    std::size_t lineCount_ = 1;
    std::unique_ptr<yaml_parser_t, DeleteParser> parser_;
    yaml_event_t event_{};
    std::unique_ptr<yaml_event_t, DeleteEvent> eventGuard_; ///< set while event_ holds something
};

} // namespace barquell::recording
