#include "observing/KeyValueObserver.h"

#include "foundation/Log.h"
#include "foundation/UserDefaults.h"

namespace barquell {

namespace {

/// The object that a silent write is writing at this moment; compared, never followed.
const Observable *writingObject = nullptr;

/// Silences the observers of an object for the length of a scope; scopes nest.
class SilentWrite {
public:
    explicit SilentWrite(const Observable *object) : _saved(writingObject) { writingObject = object; }
    ~SilentWrite() { writingObject = _saved; }
    Q_DISABLE_COPY_MOVE(SilentWrite)

private:
    const Observable *_saved;
};

/// The method to register, or nothing where there is nothing to subscribe.
std::optional<QMetaMethod> subscribable(const QObject &receiver, const Observable *object,
                                        const Selector &selector) {
    if (!object || selector.isNull()) {
        return std::nullopt;
    }
    const QMetaMethod method = selector.resolvedOn(receiver);
    if (!method.isValid()) {
        log(QStringLiteral("Receiver does not respond to selector: %1").arg(selector.name()));
        return std::nullopt;
    }
    return method;
}

void deliverChange(QObject &receiver, const QString &keyPath, const Observable *object,
                   const QVariant &newValue, const ObservingContext &context) {
    const auto *method = std::get_if<QMetaMethod>(&context);
    if (!method || object == writingObject) {
        return;
    }
    invoke(*method, receiver, nilForNullObject(newValue), false, keyPath);
}

} // namespace

KeyValueObserver::KeyValueObserver(QObject *parent) : QObject(parent) {}

KeyValueObserver::~KeyValueObserver() {
    unsubscribeFromAllObjects();
}

bool KeyValueObserver::subscribeToKeyPath(const QString &keyPath, Observable *object,
                                          const Selector &selector, bool init) {
    const auto method = subscribable(*this, object, selector);
    if (!method) {
        return false;
    }
    QSet<QString> &keyPaths = keyPathsOf(object);
    if (keyPaths.contains(keyPath)) {
        object->removeObserver(*this, keyPath);
    }
    object->addObserver(*this, keyPath, *method);
    keyPaths.insert(keyPath);
    if (init) {
        invoke(*method, *this, object->valueForKeyPath(keyPath), true, keyPath);
    }
    return true;
}

QSet<QString> &KeyValueObserver::keyPathsOf(Observable *object) {
    if (!_subscriptions) {
        _subscriptions.emplace();
    }
    Subscription &subscription = (*_subscriptions)[object];
    if (!subscription.forgetting) {
        subscription.forgetting = connect(object, &QObject::destroyed, this, [this, object] {
            if (_subscriptions) {
                _subscriptions->remove(object);
            }
        });
    }
    return subscription.keyPaths;
}

void KeyValueObserver::unsubscribeFromKeyPath(const QString &keyPath, Observable *object) {
    if (!_subscriptions) {
        return;
    }
    const auto entry = _subscriptions->find(object);
    if (entry != _subscriptions->end() && entry->keyPaths.remove(keyPath)) {
        object->removeObserver(*this, keyPath);
    }
}

void KeyValueObserver::unsubscribeFromObject(Observable *object) {
    if (!_subscriptions || !_subscriptions->contains(object)) {
        return;
    }
    const Subscription subscription = _subscriptions->take(object);
    disconnect(subscription.forgetting);
    for (const QString &keyPath : subscription.keyPaths) {
        object->removeObserver(*this, keyPath);
    }
}

void KeyValueObserver::unsubscribeFromAllObjects() {
    if (!_subscriptions) {
        return;
    }
    const QList<Observable *> objects = _subscriptions->keys();
    for (Observable *object : objects) {
        unsubscribeFromObject(object);
    }
    _subscriptions.reset();
}

void KeyValueObserver::setValue(const QVariant &value, const QString &keyPath, Observable *object) {
    if (!object) {
        return;
    }
    const SilentWrite silence(object);
    object->setValue(value, keyPath);
}

bool KeyValueObserver::subscribeToUserDefaultsKeyPath(const QString &keyPath, const Selector &selector,
                                                      bool init) {
    return subscribeToKeyPath(keyPath, &UserDefaults::standard(), selector, init);
}

void KeyValueObserver::unsubscribeFromUserDefaultsKeyPath(const QString &keyPath) {
    unsubscribeFromKeyPath(keyPath, &UserDefaults::standard());
}

void KeyValueObserver::unsubscribeFromUserDefaults() {
    unsubscribeFromObject(&UserDefaults::standard());
}

void KeyValueObserver::setUserDefaultsValue(const QVariant &value, const QString &keyPath) {
    setValue(value, keyPath, &UserDefaults::standard());
}

void KeyValueObserver::observeValueForKeyPath(const QString &keyPath, Observable *object,
                                              const QVariant &newValue, const ObservingContext &context) {
    deliverChange(*this, keyPath, object, newValue, context);
}

bool KeyValueObserverClass::subscribeToKeyPath(const QString &keyPath, Observable *object,
                                               const Selector &selector, bool init) {
    const auto method = subscribable(*this, object, selector);
    if (!method) {
        return false;
    }
    object->addObserver(*this, keyPath, *method);
    if (init) {
        invoke(*method, *this, object->valueForKeyPath(keyPath), true, keyPath);
    }
    return true;
}

bool KeyValueObserverClass::subscribeToUserDefaultsKeyPath(const QString &keyPath, const Selector &selector,
                                                           bool init) {
    return subscribeToKeyPath(keyPath, &UserDefaults::standard(), selector, init);
}

void KeyValueObserverClass::observeValueForKeyPath(const QString &keyPath, Observable *object,
                                                   const QVariant &newValue,
                                                   const ObservingContext &context) {
    deliverChange(*this, keyPath, object, newValue, context);
}

} // namespace barquell
