#pragma once

#include "blocking/TrustedProcessChecker.h"

#include <QList>

#include <functional>

namespace barquell::test {

/// Remembers what it was told of trust, and then does what the test wants.
class TrustRecorder : public QObject, public TrustedProcessObserver {
    Q_OBJECT

public:
    void processTrustedStateDidChange(bool trusted) override {
        told.append(trusted);
        if (then) {
            then();
        }
    }

    QList<bool> told;
    std::function<void()> then;
};

} // namespace barquell::test
