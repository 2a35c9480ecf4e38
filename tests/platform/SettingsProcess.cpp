// A process of its own for the tests of settings that several share. The first argument says what it does,
// the second is the settings file.

#include "foundation/UserDefaults.h"
#include "platform/linux/FileAccess.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/ChangeRecorder.h"
#include "support/Wait.h"

#include <QCoreApplication>

#include <cstdio>

namespace barquell {
namespace {

bool writePatiently(FileSettingsStore &store, const QString &key, const QVariant &value) {
    SettingsStore::Outcome outcome = SettingsStore::Outcome::TryLater;
    while (outcome == SettingsStore::Outcome::TryLater) {
        outcome = store.write(key, value);
    }
    return outcome == SettingsStore::Outcome::Done;
}

/// Writes as many keys with this beginning as it is told.
int writeKeys(FileSettingsStore &store, const QString &beginning, int count) {
    for (int number = 0; number < count; ++number) {
        if (!writePatiently(store, beginning + QString::number(number), number)) {
            return 1;
        }
    }
    return 0;
}

/// Writes one value after another until it is killed; each of its parts says which one it is.
int churn(FileSettingsStore &store) {
    for (qlonglong number = 0;; ++number) {
        const QVariantList parts(5000, number);
        if (!writePatiently(store, QStringLiteral("parts"), parts)) {
            return 1;
        }
        if (number == 0) {
            std::puts("ready");
            std::fflush(stdout);
        }
    }
}

/// Takes the lock and keeps it until its input ends.
int hold(const QString &path) {
    const FileLock lock(path + QStringLiteral(".lock"));
    std::puts(lock.state() == FileLock::State::Held ? "ready" : "failed");
    std::fflush(stdout);
    return std::getchar() == EOF ? 0 : 1;
}

/// Prints the first change of the key.
int observe(FileSettingsStore &store, const QString &key) {
    UserDefaults defaults(&store);
    test::ChangeRecorder recorder;
    defaults.addObserver(recorder, key, {});
    std::puts("ready");
    std::fflush(stdout);
    if (!test::waitFor([&] { return !recorder.changes.isEmpty(); })) {
        return 1;
    }
    std::puts(qPrintable(recorder.changes.first().second.toString()));
    return 0;
}

int run(const QStringList &arguments) {
    const QString task = arguments.value(1);
    const QString path = arguments.value(2);
    FileSettingsStore store(path);
    if (task == QLatin1String("write")) {
        return writeKeys(store, arguments.value(3), arguments.value(4).toInt());
    }
    if (task == QLatin1String("churn")) {
        return churn(store);
    }
    if (task == QLatin1String("hold")) {
        return hold(path);
    }
    if (task == QLatin1String("observe")) {
        return observe(store, arguments.value(3));
    }
    return 1;
}

} // namespace
} // namespace barquell

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    return barquell::run(QCoreApplication::arguments());
}
