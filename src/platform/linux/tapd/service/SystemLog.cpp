#include "platform/linux/tapd/service/SystemLog.h"

#include <algorithm>
#include <cstdio>
#include <syslog.h>

namespace barquell::tapd {

namespace {

void write(const std::string &text) {
    std::fprintf(stderr, "barquell-tapd: %s\n", text.c_str());
    ::syslog(LOG_NOTICE, "%s", text.c_str());
}

} // namespace

SystemLog::SystemLog() {
    ::openlog("barquell-tapd", LOG_PID, LOG_DAEMON);
}

SystemLog::~SystemLog() {
    ::closelog();
}

void SystemLog::line(std::string_view text) {
    if (!_limit.admits(std::chrono::steady_clock::now())) {
        return;
    }
    if (const int leftOut = _limit.takeLeftOut()) {
        write(std::to_string(leftOut) + " lines were left out");
    }
    // Devices choose their names; a line stays a line.
    std::string printable(text);
    std::replace_if(
        printable.begin(), printable.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    write(printable);
}

} // namespace barquell::tapd
