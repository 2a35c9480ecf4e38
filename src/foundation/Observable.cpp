#include "foundation/Observable.h"

#include <QPointer>

#include <algorithm>

namespace barquell {

struct Observable::Registration {
    ChangeObserver *observer; // removes itself before it goes away; nullptr from then on
    QString keyPath;
    ObservingContext context;
};

Observable::Observable(QObject *parent) : QObject(parent) {}

Observable::~Observable() = default;

QVariant Observable::valueForKeyPath(const QString &keyPath) const {
    return property(keyPath.toUtf8().constData());
}

void Observable::setValue(const QVariant &value, const QString &keyPath) {
    setProperty(keyPath.toUtf8().constData(), value);
    didChangeValue(keyPath);
}

void Observable::addObserver(ChangeObserver &observer, const QString &keyPath,
                             const ObservingContext &context) {
    _registrations.push_back(std::make_shared<Registration>(Registration{&observer, keyPath, context}));
}

void Observable::removeObserver(ChangeObserver &observer, const QString &keyPath) {
    const auto newest = std::find_if(_registrations.rbegin(), _registrations.rend(), [&](const auto &entry) {
        return entry->observer == &observer && entry->keyPath == keyPath;
    });
    if (newest == _registrations.rend()) {
        return;
    }
    (*newest)->observer = nullptr; // a change that is being told right now skips it
    _registrations.erase(std::next(newest).base());
}

void Observable::didChangeValue(const QString &keyPath) {
    const QPointer<Observable> self = this; // an observer may destroy us
    const auto registrations = _registrations;
    for (const auto &entry : registrations) {
        if (entry->observer && entry->keyPath == keyPath) {
            // Asked for each anew: an observer may have written another value in the meantime.
            const QVariant current = valueForKeyPath(keyPath);
            const QVariant newValue = current.isValid() ? current : nullObject();
            entry->observer->observeValueForKeyPath(keyPath, self.data(), newValue, entry->context);
        }
        if (!self) {
            return;
        }
    }
}

QVariant nullObject() {
    return QVariant::fromValue(nullptr);
}

bool isNullObject(const QVariant &value) {
    return value.typeId() == QMetaType::Nullptr;
}

QVariant nilForNullObject(const QVariant &value) {
    return isNullObject(value) ? QVariant() : value;
}

} // namespace barquell
