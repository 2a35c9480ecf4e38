#include "blocking/TrustedProcessChecker.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/AccessibilityTrust.h"
#include "platform/DistributedNotifications.h"
#include "platform/Platform.h"

#include <QList>
#include <QPointer>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <stdexcept>

namespace barquell {

namespace {

using namespace std::chrono_literals;

constexpr auto kPollInterval = 30s;
// The system announces a change of the list before it answers accordingly.
constexpr auto kChangeGrace = 100ms;

QString accessibilityNotification() {
    return QStringLiteral("com.apple.accessibility.api");
}

/// The observers, weakly held; knows whether it is being changed while it is walked.
class ObserverTable {
public:
    void add(QObject *observer) {
        if (!std::any_of(_observers.begin(), _observers.end(),
                         [&](const auto &entry) { return entry == observer; })) {
            _observers.append(observer);
            ++_changes;
        }
    }

    void remove(QObject *observer) {
        _changes +=
            static_cast<unsigned>(_observers.removeIf([&](const auto &entry) { return entry == observer; }));
    }

    bool isEmpty() {
        _observers.removeIf([](const auto &entry) { return entry.isNull(); });
        return _observers.isEmpty();
    }

    template <typename Visit>
    void forEach(Visit visit) const {
        const auto observers = _observers;
        const unsigned changes = _changes;
        for (const QPointer<QObject> &observer : observers) {
            if (observer) {
                visit(*observer);
            }
            if (changes != _changes) {
                throw std::logic_error("trust observers were added or removed while they were told");
            }
        }
    }

private:
    QList<QPointer<QObject>> _observers;
    unsigned _changes = 0;
};

struct Static {
    bool trusted = false;
    std::unique_ptr<ObserverTable> observers;
    std::unique_ptr<RunLoop::Timer> pollTimer;
    std::unique_ptr<Observation> accessibilityChanges;
};

Static &state() {
    static Static instance;
    return instance;
}

QString describe(const QObject &observer) {
    const QString name = QString::fromLatin1(observer.metaObject()->className());
    return QStringLiteral("<%1: 0x%2>").arg(name).arg(reinterpret_cast<quintptr>(&observer), 0, 16);
}

void notifyObserver(QObject &observer) {
    const QString description = describe(observer); // it may be gone when it throws
    try {
        dynamic_cast<TrustedProcessObserver &>(observer).processTrustedStateDidChange(state().trusted);
    } catch (const std::exception &exception) {
        log(QStringLiteral("Exception while notifying observer %1: %2")
                .arg(description, QString::fromUtf8(exception.what())));
    } catch (...) {
        log(QStringLiteral("Unknown exception while notifying observer %1").arg(description));
    }
}

void notifyObservers() {
    state().observers->forEach(notifyObserver);
}

bool checkTrust(bool delayObservers) {
    const bool now = platform().accessibilityTrust->isProcessTrusted();
    if (now == state().trusted) {
        return false;
    }
    state().trusted = now;
    if (state().observers->isEmpty()) {
        return true;
    }
    if (!delayObservers) {
        notifyObservers();
        return true;
    }
    RunLoop::main().performAsync([now] {
        if (state().trusted == now) {
            notifyObservers();
        }
    });
    return true;
}

void accessibilityDidChange(const QString &name) {
    log(QStringLiteral("Got %1").arg(name));
    RunLoop::main().performAfter(kChangeGrace, [] { checkTrust(false); });
}

} // namespace

void TrustedProcessChecker::initialize() {
    static bool initialized = false;
    if (std::exchange(initialized, true)) {
        return;
    }
    state().trusted = platform().accessibilityTrust->isProcessTrusted();
    state().observers.reset(new (std::nothrow) ObserverTable); // NOLINT(cppcoreguidelines-owning-memory)
    if (!state().observers) {
        log(QStringLiteral("Failed to allocate observers table"));
        std::exit(-1); // NOLINT(concurrency-mt-unsafe): nothing works without it
    }
    state().accessibilityChanges =
        platform().distributedNotifications->observe(accessibilityNotification(), accessibilityDidChange);
}

bool TrustedProcessChecker::isTrusted() {
    initialize();
    return state().trusted;
}

bool TrustedProcessChecker::checkIsTrustedAfterTimeout() {
    initialize();
    checkTrust(true);
    if (!state().trusted) {
        return false;
    }
    platform().distributedNotifications->post(accessibilityNotification());
    return true;
}

bool TrustedProcessChecker::checkIsTrusted() {
    initialize();
    checkTrust(false);
    return state().trusted;
}

bool TrustedProcessChecker::checkIsTrustedDelayObservers() {
    initialize();
    checkTrust(true);
    return state().trusted;
}

void TrustedProcessChecker::addObserver(QObject *observer, bool init) {
    initialize();
    auto *responder = dynamic_cast<TrustedProcessObserver *>(observer);
    if (!responder) {
        return;
    }
    state().observers->add(observer);
    if (checkTrust(false)) {
        return;
    }
    if (!state().pollTimer) {
        state().pollTimer = RunLoop::main().scheduleRepeating(kPollInterval, [] { checkTrust(false); });
    }
    if (init) {
        responder->processTrustedStateDidChange(state().trusted);
    }
}

void TrustedProcessChecker::removeObserver(QObject *observer) {
    initialize();
    state().observers->remove(observer);
    if (state().pollTimer && state().observers->isEmpty()) {
        state().pollTimer.reset();
    }
}

} // namespace barquell
