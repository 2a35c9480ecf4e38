#pragma once

#include "platform/linux/tapd/core/Ports.h"

#include <memory>

struct sd_bus;

namespace barquell::tapd {

/// One question to polkit, on a connection to the system bus that is there for it alone: between questions
/// there is none, and polkit drops the question of whoever leaves the bus. Never waits. One thread.
class PolkitQuestion {
public:
    static constexpr const char *kAction = "com.vexolith.barquell.filter-touch-bar";

    /// Asks whether the client's process may have the grant, by a prompt where needed. nullptr where there is
    /// no bus or the process has gone.
    static std::unique_ptr<PolkitQuestion> ask(const ClientLink &link, Log &log);

    ~PolkitQuestion() = default;
    PolkitQuestion(const PolkitQuestion &) = delete;
    PolkitQuestion &operator=(const PolkitQuestion &) = delete;

    int descriptor() const;
    bool wantsToWrite() const;

    /// Something came, or there is room. The answer, once it is there.
    std::optional<Answer> proceed();

    /// What the reply says.
    void hear(Answer answer) { _answer = answer; }
    Log &log() const { return _log; }

private:
    struct Close {
        void operator()(sd_bus *bus) const;
    };

    PolkitQuestion(sd_bus *bus, Log &log) : _bus(bus), _log(log) {}

    bool send(const ClientLink &link, std::uint64_t start);

    std::unique_ptr<sd_bus, Close> _bus;
    Log &_log;
    std::optional<Answer> _answer;
};

} // namespace barquell::tapd
