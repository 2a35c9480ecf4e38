#pragma once

#include "foundation/Observable.h"

namespace barquell {

/// Lets plain functions follow a key: register cls() with the observed object and the function as the
/// context. The function gets the new value, nil where there is none any more, also for writes that are
/// silent for key-value observers. Reading the initial value is the registrant's. Main thread only.
class KeyValueFunctionObserver final : public ChangeObserver {
public:
    static KeyValueFunctionObserver &cls();

    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;

private:
    KeyValueFunctionObserver() = default;
};

} // namespace barquell
