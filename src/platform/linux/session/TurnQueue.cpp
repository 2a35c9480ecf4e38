#include "platform/linux/session/TurnQueue.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"

#include <utility>

namespace barquell {

namespace {

constexpr std::size_t kMostPending = 65536;

} // namespace

TurnQueue::TurnQueue() {
    connect(&_turn, &QTimer::timeout, this, &TurnQueue::performNext);
}

bool TurnQueue::add(const QString &name, std::function<void()> task) {
    if (_pending.size() == kMostPending) {
        sayFlooded(name);
        return false;
    }
    _pending.push_back(std::move(task));
    _turn.start();
    return true;
}

void TurnQueue::sayFlooded(const QString &name) {
    if (!std::exchange(_flooded, true)) {
        log(QStringLiteral("%1 comes too often; some are left out").arg(cleanLine(name, kLongestQuote)));
    }
}

void TurnQueue::performNext() {
    // Through the run loop, which holds a task's exceptions back.
    RunLoop::main().performAsync(std::move(_pending.front()));
    _pending.pop_front();
    if (_pending.empty()) {
        _turn.stop();
        _flooded = false;
    }
}

} // namespace barquell
