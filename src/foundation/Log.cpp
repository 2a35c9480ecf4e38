#include "foundation/Log.h"

#include <syslog.h>

#include <cstdio>
#include <mutex>

namespace barquell {

namespace {

std::mutex sinkMutex;

LogSink &currentSink() {
    static LogSink sink;
    return sink;
}

/// A copy, so that a sink is not called under the lock: it may log itself, or put another in its place.
LogSink copyOfSink() {
    const std::scoped_lock lock(sinkMutex);
    return currentSink();
}

bool turnsTheOrder(QChar character) {
    const char16_t code = character.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool mayStandInALine(QChar character) {
    const char16_t code = character.unicode();
    const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool lineBreak = code == 0x2028 || code == 0x2029;
    return !control && !lineBreak && !turnsTheOrder(character) && !character.isSurrogate();
}

/// The character that begins there; a half of one is '?', too.
QString cleanCharacter(const QString &text, qsizetype at) {
    const QChar character = text.at(at);
    if (mayStandInALine(character)) {
        return character;
    }
    const bool pair = character.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return pair ? text.mid(at, 2) : QStringLiteral("?");
}

void print(const QString &cleaned) {
    std::fprintf(stderr, "barquell: %s\n", qUtf8Printable(cleaned));
}

} // namespace

QString cleanLine(const QString &text, qsizetype limit) {
    const qsizetype end = text.size() > limit ? limit - 1 : text.size(); // room for the ellipsis
    QString cleaned;
    while (cleaned.size() < end) {
        const QString character = cleanCharacter(text, cleaned.size()); // cleaning keeps every length
        if (cleaned.size() + character.size() > end) {
            break;
        }
        cleaned += character;
    }
    return end < text.size() ? cleaned + QChar(0x2026) : cleaned;
}

void logToStandardError(const QString &line) {
    print(cleanLine(line));
}

void log(const QString &line) {
    const QString cleaned = cleanLine(line);
    if (const LogSink sink = copyOfSink()) {
        sink(cleaned);
        return;
    }
    syslog(LOG_USER | LOG_NOTICE, "%s", qUtf8Printable(cleaned));
    print(cleaned);
}

void setLogSink(LogSink sink) {
    const std::scoped_lock lock(sinkMutex);
    currentSink().swap(sink); // what the old one held is let go outside of the lock
}

} // namespace barquell
