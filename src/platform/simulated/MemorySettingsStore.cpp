#include "platform/simulated/MemorySettingsStore.h"

#include "foundation/RunLoop.h"

namespace barquell {

SettingsStore::Outcome MemorySettingsStore::write(const QString &key, const QVariant &value) {
    _domain.insert(key, value);
    announce();
    return Outcome::Done;
}

SettingsStore::Outcome MemorySettingsStore::remove(const QString &key) {
    _domain.remove(key);
    announce();
    return Outcome::Done;
}

SettingsStore::Outcome MemorySettingsStore::removeDomain() {
    _domain.clear();
    announce();
    return Outcome::Done;
}

void MemorySettingsStore::watch(std::function<void()> mayHaveChanged) {
    _watcher = std::make_shared<std::function<void()>>(std::move(mayHaveChanged));
}

void MemorySettingsStore::editFromOutside(const QString &key, const QVariant &value) {
    if (value.isValid()) {
        write(key, value);
    } else {
        remove(key);
    }
}

void MemorySettingsStore::announce() {
    RunLoop::main().performAsync([weak = std::weak_ptr(_watcher)] {
        if (const auto watcher = weak.lock()) {
            (*watcher)();
        }
    });
}

} // namespace barquell
