#pragma once

#include "foundation/Observable.h"

#include <QList>
#include <QPair>

namespace barquell::test {

/// Notes what it is told.
class ChangeRecorder final : public ChangeObserver {
public:
    void observeValueForKeyPath(const QString &keyPath, Observable * /*object*/, const QVariant &newValue,
                                const ObservingContext & /*context*/) override {
        changes.append({keyPath, newValue});
    }

    QList<QPair<QString, QVariant>> changes;
};

} // namespace barquell::test
