#pragma once

#include "platform/SettingsStore.h"

#include <QStringList>

#include <memory>

namespace barquell {

/// The preferences of the application for the current user on any host.
class MacSettingsStore final : public SettingsStore {
public:
    /// Outside changes are seen for these keys, since the system tells of them key by key.
    MacSettingsStore(const QString &domain, const QStringList &keys);
    ~MacSettingsStore() override;
    MacSettingsStore(const MacSettingsStore &) = delete;
    MacSettingsStore &operator=(const MacSettingsStore &) = delete;

    QVariantMap read() override;
    Outcome write(const QString &key, const QVariant &value) override;
    Outcome remove(const QString &key) override;
    Outcome removeDomain() override;
    void watch(std::function<void()> mayHaveChanged) override;

private:
    struct Native; // what only Objective-C can name

    Outcome synchronize() const;

    std::unique_ptr<Native> _native;
    QStringList _keys;
};

} // namespace barquell
