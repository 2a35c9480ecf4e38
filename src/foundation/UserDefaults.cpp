#include "foundation/UserDefaults.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "foundation/Values.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QPointer>

#include <chrono>
#include <utility>

namespace barquell {

namespace {

using Outcome = SettingsStore::Outcome;

constexpr std::chrono::seconds kRetryDelay{1};

QStringList keysOfBoth(const QVariantMap &left, const QVariantMap &right) {
    QStringList keys = left.keys() + right.keys();
    keys.removeDuplicates();
    return keys;
}

} // namespace

UserDefaults &UserDefaults::standard() {
    static UserDefaults defaults(platform().settingsStore);
    return defaults;
}

UserDefaults::UserDefaults(SettingsStore *store, Following following) : _store(store) {
    if (!_store) {
        return;
    }
    _stored = _store->read();
    if (following == Following::Yes) {
        follow();
    }
    if (QCoreApplication *application = QCoreApplication::instance()) {
        connect(application, &QCoreApplication::aboutToQuit, this, [this] {
            if (synchronize() == Outcome::TryLater) {
                log(QStringLiteral("Not every setting was saved: another process keeps the settings locked"));
            }
        });
    }
}

void UserDefaults::follow() {
    _store->watch([self = QPointer<UserDefaults>(this)] {
        if (self) {
            self->storeMayHaveChanged();
        }
    });
}

void UserDefaults::registerDefaults(const QVariantMap &defaults) {
    for (auto entry = defaults.cbegin(); entry != defaults.cend(); ++entry) {
        if (const std::optional<QVariant> value = storableValue(entry.value())) {
            _registered.insert(entry.key(), *value);
        } else {
            log(QStringLiteral("The default of \"%1\" is not of a type for settings").arg(entry.key()));
        }
    }
}

QVariant UserDefaults::objectForKey(const QString &key) const {
    const QVariant stored = _stored.value(key);
    return stored.isValid() ? stored : _registered.value(key);
}

bool UserDefaults::boolForKey(const QString &key) const {
    return boolValue(objectForKey(key));
}

qint64 UserDefaults::integerForKey(const QString &key) const {
    return integerValue(objectForKey(key));
}

void UserDefaults::setObject(const QVariant &value, const QString &key) {
    if (!value.isValid()) {
        removeObjectForKey(key);
        return;
    }
    const std::optional<QVariant> storable = storableValue(value);
    if (!storable || !key.isValidUtf16()) {
        log(QStringLiteral("The setting \"%1\" stays as it is: its new value is not of a type for settings")
                .arg(key));
        return;
    }
    _stored.insert(key, *storable);
    save(key, *storable);
    didChangeValue(key);
}

void UserDefaults::removeObjectForKey(const QString &key) {
    const bool wasStored = _stored.remove(key) > 0;
    save(key, QVariant());
    if (wasStored) {
        didChangeValue(key);
    }
}

void UserDefaults::removePersistentDomain() {
    const QStringList keys = _stored.keys();
    _stored.clear();
    const Outcome outcome = _store ? _store->removeDomain() : Outcome::Done;
    if (outcome == Outcome::Done) {
        _unsaved.clear();
    } else {
        for (const QString &key : keys) {
            keepUnsaved(key, QVariant(), outcome);
        }
    }
    for (const QString &key : keys) {
        didChangeValue(key);
    }
}

Outcome UserDefaults::synchronize() {
    Outcome result = Outcome::Done;
    for (const QString &key : _unsaved.keys()) { // a copy, since saving takes entries out
        const Unsaved unsaved = _unsaved.value(key);
        if (unsaved.outcome == Outcome::Failed) {
            result = result == Outcome::Done ? Outcome::Failed : result;
        } else if (result != Outcome::TryLater) { // one wait for a busy store is enough
            save(key, unsaved.value);
            result = _unsaved.contains(key) ? _unsaved.value(key).outcome : result;
        }
    }
    return result;
}

void UserDefaults::save(const QString &key, const QVariant &value) {
    if (!_store) {
        return;
    }
    const Outcome outcome = value.isValid() ? _store->write(key, value) : _store->remove(key);
    if (outcome == Outcome::Done) {
        _unsaved.remove(key);
    } else {
        keepUnsaved(key, value, outcome);
    }
}

void UserDefaults::keepUnsaved(const QString &key, const QVariant &value, Outcome outcome) {
    _unsaved.insert(key, {value, outcome});
    if (outcome == Outcome::TryLater) {
        retryLater();
    }
}

void UserDefaults::retryLater() {
    if (std::exchange(_retryScheduled, true)) {
        return;
    }
    RunLoop::main().performAfter(kRetryDelay, [self = QPointer<UserDefaults>(this)] {
        if (self) {
            self->_retryScheduled = false;
            self->synchronize();
        }
    });
}

void UserDefaults::storeMayHaveChanged() {
    const QVariantMap previous = std::exchange(_stored, readStore());
    QStringList changed;
    for (const QString &key : keysOfBoth(previous, _stored)) {
        if (!sameValue(previous.value(key, _registered.value(key)), objectForKey(key))) {
            changed.append(key);
        }
    }
    const QPointer<UserDefaults> self = this; // an observer may destroy us
    for (const QString &key : changed) {
        if (self) {
            didChangeValue(key);
        }
    }
}

QVariantMap UserDefaults::readStore() const {
    QVariantMap domain = _store->read();
    for (auto entry = _unsaved.cbegin(); entry != _unsaved.cend(); ++entry) {
        if (entry->value.isValid()) {
            domain.insert(entry.key(), entry->value);
        } else {
            domain.remove(entry.key());
        }
    }
    return domain;
}

} // namespace barquell
