// A process of its own for the tests of settings that several share. The first argument says what it does,
// the second is the settings file.

#include "foundation/UserDefaults.h"
#include "platform/linux/FileAccess.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/ChangeRecorder.h"
#include "support/Wait.h"

#include <QCoreApplication>

#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

// A writer can be made to die at one of its calls on the disk, which are counted in the C library's place.

namespace {

int callsToLive = -1; // negative: for ever

bool isTheLast() {
    return callsToLive >= 0 && callsToLive-- == 0;
}

void dieIfTheLast() {
    if (isTheLast()) {
        std::raise(SIGKILL);
    }
}

} // namespace

extern "C" int unlink(const char *path) noexcept {
    dieIfTheLast();
    return static_cast<int>(::syscall(SYS_unlink, path));
}

extern "C" int fchmod(int file, mode_t mode) noexcept {
    dieIfTheLast();
    return static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

extern "C" ssize_t write(int file, const void *bytes, size_t size) {
    if (isTheLast()) {
        ::syscall(SYS_write, file, bytes, size / 2);
        std::raise(SIGKILL);
    }
    return ::syscall(SYS_write, file, bytes, size);
}

extern "C" int fsync(int file) {
    dieIfTheLast();
    return static_cast<int>(::syscall(SYS_fsync, file));
}

extern "C" int rename(const char *from, const char *to) noexcept {
    dieIfTheLast();
    return static_cast<int>(::syscall(SYS_rename, from, to));
}

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

/// Writes a value each of whose parts says which one it is.
bool writeParts(FileSettingsStore &store, qlonglong number) {
    return writePatiently(store, QStringLiteral("parts"), QVariantList(5000, number));
}

/// Writes one value after another until it is killed.
int churn(FileSettingsStore &store) {
    for (qlonglong number = 0;; ++number) {
        if (!writeParts(store, number)) {
            return 1;
        }
        if (number == 0) {
            std::puts("ready");
            std::fflush(stdout);
        }
    }
}

/// Writes the value and dies after so many calls on the disk, if there are as many.
int writeUntil(FileSettingsStore &store, qlonglong number, int calls) {
    callsToLive = calls;
    const bool written = writeParts(store, number);
    callsToLive = -1;
    return written ? 0 : 1;
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
    if (task == QLatin1String("die")) {
        return writeUntil(store, arguments.value(3).toLongLong(), arguments.value(4).toInt());
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
