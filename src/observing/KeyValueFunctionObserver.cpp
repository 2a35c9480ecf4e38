#include "observing/KeyValueFunctionObserver.h"

namespace barquell {

KeyValueFunctionObserver &KeyValueFunctionObserver::cls() {
    static KeyValueFunctionObserver observer;
    return observer;
}

void KeyValueFunctionObserver::observeValueForKeyPath(const QString & /*keyPath*/, Observable * /*object*/,
                                                      const QVariant &newValue,
                                                      const ObservingContext &context) {
    if (const auto *function = std::get_if<ChangeFunction>(&context)) {
        (*function)(nilForNullObject(newValue));
    }
}

} // namespace barquell
