#pragma once

#include <QObject>

namespace barquell {

/// What an object must be to hear of trust.
class TrustedProcessObserver {
public:
    virtual ~TrustedProcessObserver() = default;

    virtual void processTrustedStateDidChange(bool trusted) = 0;

protected:
    TrustedProcessObserver() = default;
    TrustedProcessObserver(const TrustedProcessObserver &) = default;
    TrustedProcessObserver &operator=(const TrustedProcessObserver &) = default;
};

/// Knows whether this process may filter events, and tells its observers when that changes. There is no
/// direct word from the system, so it puts three together: the notification that the accessibility list
/// changed, a poll every 30 s while anyone observes, and the checks that callers ask for. Main thread only.
///
/// Adding or removing observers while they are told is an error: the call that told them throws
/// std::logic_error. What an observer throws is logged and ends there. The process ends with status -1 where
/// there is no memory for the table of observers.
class TrustedProcessChecker {
public:
    TrustedProcessChecker() = delete;

    /// The last answer of the system, without asking again.
    static bool isTrusted();

    /// Asks after the tap was disabled by a timeout. Observers hear later; where the process is trusted every
    /// listener of the accessibility notification is made to look again.
    static bool checkIsTrustedAfterTimeout();

    /// Asks; observers hear before this returns.
    static bool checkIsTrusted();

    /// Asks; observers hear later, for callers that must not be called back now.
    static bool checkIsTrustedDelayObservers();

    /// Adds an observer, held weakly, and asks. Ignored where it is no TrustedProcessObserver. Where trust
    /// has changed everyone is told; else, with init, the new one alone is told what holds.
    static void addObserver(QObject *observer, bool init);
    static void removeObserver(QObject *observer);

private:
    static void initialize();
};

} // namespace barquell
