#pragma once

#include <QVariantMap>

#include <functional>

namespace barquell {

/// The persistent domain behind the user defaults. What is read has exactly the type that was written: bool,
/// qint64 (as qlonglong), double, QString, QByteArray, QDateTime, QVariantList or QVariantMap of these.
/// Main thread only. macOS: CFPreferences, application domain, current user, any host.
class SettingsStore {
public:
    /// What became of a write. TryLater: the store is intact but busy; Failed: said in one line to the log.
    enum class Outcome { Done, TryLater, Failed };

    virtual ~SettingsStore() = default;

    /// The whole domain as it is stored now; a store that cannot be read gives an empty one, is kept aside
    /// under another name, and says so in one line. macOS: CFPreferencesCopyMultiple(nullptr, …).
    virtual QVariantMap read() = 0;

    /// Sets one key and leaves the others as they are in the store, also those that another process wrote.
    /// macOS: CFPreferencesSetValue, CFPreferencesSynchronize.
    virtual Outcome write(const QString &key, const QVariant &value) = 0;

    /// macOS: CFPreferencesSetValue with a null value, CFPreferencesSynchronize.
    virtual Outcome remove(const QString &key) = 0;

    /// Removes every key. macOS: CFPreferencesSetMultiple(nullptr, every key, …).
    virtual Outcome removeDomain() = 0;

    /// Calls from the main run loop whenever the stored domain may have changed, our own writes included; the
    /// one who is called reads and compares. There is one watcher. macOS: key-value observation of the
    /// domain.
    virtual void watch(std::function<void()> mayHaveChanged) = 0;

protected:
    SettingsStore() = default;
    SettingsStore(const SettingsStore &) = default;
    SettingsStore &operator=(const SettingsStore &) = default;
};

} // namespace barquell
