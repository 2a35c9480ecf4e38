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

} // namespace

void logToStandardError(const QString &line) {
    std::fprintf(stderr, "barquell: %s\n", qUtf8Printable(line));
}

void log(const QString &line) {
    const std::scoped_lock lock(sinkMutex);
    if (currentSink()) {
        currentSink()(line);
        return;
    }
    syslog(LOG_USER | LOG_NOTICE, "%s", qUtf8Printable(line));
    logToStandardError(line);
}

void setLogSink(LogSink sink) {
    const std::scoped_lock lock(sinkMutex);
    currentSink() = std::move(sink);
}

} // namespace barquell
