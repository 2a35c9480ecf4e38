#pragma once

#include "platform/linux/tapd/core/Ports.h"
#include "platform/linux/tapd/service/LineLimit.h"
#include "platform/linux/tapd/service/LineWriter.h"

namespace barquell::tapd {

/// The system log and, where that does not lead there as well, standard error. A line that either cannot take
/// at once is lost to it: who waits for a log does not serve the bar that it holds. One thread.
class SystemLog final : public Log {
public:
    explicit SystemLog(int error = STDERR_FILENO, std::string systemSocket = "/dev/log");

    void line(std::string_view text) override;

    /// A line in the forms in which it goes out.
    struct Ready {
        std::string error;
        std::string system;
    };
    /// The text stays as it is, which is to be one line.
    static Ready ready(std::string_view text);
    /// Whatever the limit. A signal handler may call this.
    void write(const Ready &line) const;

private:
    void writeToSystem(const std::string &packet) const;

    LineLimit _limit;
    LineWriter _error;
    FileDescriptor _system; ///< asks for the address each time, since the log may be started anew
    std::string _systemSocket;
};

} // namespace barquell::tapd
