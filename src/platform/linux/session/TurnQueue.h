#pragma once

#include <QTimer>

#include <deque>
#include <functional>

namespace barquell {

/// Tasks in their order, one a turn of the run loop: a burst of thousands holds nothing else up. Bounded.
/// What is pending when this ends is dropped. Main thread only.
class TurnQueue final : public QObject {
public:
    TurnQueue();

    /// False where too much is pending already; the first that is refused is said in one line, by that name.
    bool add(const QString &name, std::function<void()> task);

private:
    void sayFlooded(const QString &name);
    void performNext();

    std::deque<std::function<void()>> _pending;
    bool _flooded = false;
    QTimer _turn; // runs while something is pending
};

} // namespace barquell
