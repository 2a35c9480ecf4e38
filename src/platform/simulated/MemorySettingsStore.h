#pragma once

#include "platform/SettingsStore.h"

#include <memory>

namespace barquell {

/// Settings that end with the process: for the simulated Touch Bar and for tests.
class MemorySettingsStore final : public SettingsStore {
public:
    QVariantMap read() override { return _domain; }
    Outcome write(const QString &key, const QVariant &value) override;
    Outcome remove(const QString &key) override;
    Outcome removeDomain() override;
    void watch(std::function<void()> mayHaveChanged) override;

    /// What another process would do to a store on disk; an invalid value removes.
    void editFromOutside(const QString &key, const QVariant &value);

private:
    void announce();

    QVariantMap _domain;
    std::shared_ptr<std::function<void()>> _watcher; // announcements under way die with it
};

} // namespace barquell
