#pragma once

#include "foundation/Observable.h"
#include "platform/SettingsStore.h"

#include <QMap>

namespace barquell {

/// The program's settings: what the user set lies over the registered defaults. A key path is a key.
///
/// A write from within is told to the observers at once, equal or not; a change of the store from outside is
/// told for the keys whose value differs. What the observer gets is the value that counts now: the registered
/// default where nothing is stored. A write that the store cannot take still counts in memory until the
/// program ends; one that the store was only too busy for is tried again. Main thread only.
class UserDefaults final : public Observable {
    Q_OBJECT

public:
    /// The settings of this program, on the platform's store, made on first use.
    static UserDefaults &standard();

    /// Whether changes of the store from outside are followed. A tool that looks once has no use for it.
    enum class Following { Yes, No };

    /// Without a store the settings live in memory alone. The store must outlive every call.
    explicit UserDefaults(SettingsStore *store, Following following = Following::Yes);

    /// Adds to what is registered already, and replaces where a key is registered again. Tells nobody.
    void registerDefaults(const QVariantMap &defaults);

    /// The value that counts; invalid where there is none.
    QVariant objectForKey(const QString &key) const;

    /// See boolValue and integerValue for what answers other types give.
    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;

    /// An invalid value removes. One that cannot be stored (see storableValue) is said to the log and changes
    /// nothing.
    void setObject(const QVariant &value, const QString &key);

    /// Tells the observers where something was stored.
    void removeObjectForKey(const QString &key);

    /// Removes everything stored, and tells every key that was.
    void removePersistentDomain();

    /// What is stored, without the registered defaults.
    const QVariantMap &persistentDomain() const { return _stored; }

    /// Hands to the store what it was too busy for. Done: all that was set in this run is stored; TryLater:
    /// it is still busy; Failed: something counts in memory alone, which has been said to the log.
    SettingsStore::Outcome synchronize();

    QVariant valueForKeyPath(const QString &keyPath) const override { return objectForKey(keyPath); }
    void setValue(const QVariant &value, const QString &keyPath) override { setObject(value, keyPath); }

private:
    /// A value (invalid: a removal) that is not in the store, and why.
    struct Unsaved {
        QVariant value;
        SettingsStore::Outcome outcome;
    };

    void follow();
    void save(const QString &key, const QVariant &value);
    void keepUnsaved(const QString &key, const QVariant &value, SettingsStore::Outcome outcome);
    void retryLater();
    void storeMayHaveChanged();
    QVariantMap readStore() const;

    SettingsStore *const _store; // the platform's
    QVariantMap _stored;         // as the user wants it: what was read, and what is unsaved over it
    QVariantMap _registered;
    QMap<QString, Unsaved> _unsaved;
    bool _retryScheduled = false;
};

} // namespace barquell
