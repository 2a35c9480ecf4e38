#pragma once

#include "platform/linux/tapd/core/Ports.h"
#include "platform/linux/tapd/service/LineLimit.h"

namespace barquell::tapd {

/// Standard error and the system log.
class SystemLog final : public Log {
public:
    SystemLog();
    ~SystemLog();
    SystemLog(const SystemLog &) = delete;
    SystemLog &operator=(const SystemLog &) = delete;

    void line(std::string_view text) override;

private:
    LineLimit _limit;
};

} // namespace barquell::tapd
