#include "platform/linux/FileSettingsStore.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "foundation/Values.h"
#include "platform/linux/FileAccess.h"
#include "platform/linux/SettingsFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>
#include <utility>

namespace barquell {

namespace {

constexpr qint64 kMaximumSize = qint64{16} * 1024 * 1024; // far beyond any settings, well within memory

bool liesThere(const QString &path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymbolicLink();
}

/// A free name beside the file that says what and when.
QString nameToKeepUnder(const QString &path) {
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-ddTHHmmssZ"));
    const QString name = path + QStringLiteral(".broken-") + stamp;
    QString free = name;
    for (int number = 2; liesThere(free); ++number) {
        free = QStringLiteral("%1-%2").arg(name).arg(number);
    }
    return free;
}

/// The folder, or the first that is there above it.
QString nearestFolder(const QString &folder) {
    QString path = folder;
    while (!QFileInfo(path).isDir() && path != QFileInfo(path).absolutePath()) {
        path = QFileInfo(path).absolutePath();
    }
    return path;
}

} // namespace

QString FileSettingsStore::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/com.vexolith.barquell/settings.json");
}

FileSettingsStore::FileSettingsStore(QString path, std::chrono::milliseconds absenceToBelieve)
    : _path(std::move(path)), _absenceToBelieve(absenceToBelieve) {
    _settling.setSingleShot(true);
    QObject::connect(&_settling, &QTimer::timeout, &_settling, [this] { tellWatcher(); });
}

FileSettingsStore::~FileSettingsStore() = default;

QVariantMap FileSettingsStore::read() {
    Content content = load();
    if (content.isBroken() && !_lastGood) {
        content = setAsideUnlessRepaired();
    }
    if (!content.isBroken()) {
        _lastGood = content.values;
    }
    return _lastGood ? *_lastGood : _lastGood.emplace();
}

SettingsStore::Outcome FileSettingsStore::write(const QString &key, const QVariant &value) {
    const std::optional<QVariant> storable = storableValue(value);
    if (!storable || !key.isValidUtf16()) {
        return fail(QStringLiteral("a value is not of a type for settings"));
    }
    return change([&](QVariantMap &values) { values.insert(key, *storable); });
}

SettingsStore::Outcome FileSettingsStore::remove(const QString &key) {
    return change([&](QVariantMap &values) { values.remove(key); });
}

SettingsStore::Outcome FileSettingsStore::removeDomain() {
    return change([](QVariantMap &values) { values.clear(); });
}

void FileSettingsStore::watch(std::function<void()> mayHaveChanged) {
    _mayHaveChanged = std::make_shared<std::function<void()>>(std::move(mayHaveChanged));
    if (!_watcher) {
        _watcher = std::make_unique<QFileSystemWatcher>();
        const auto changed = [this] { fileMayHaveChanged(); };
        QObject::connect(_watcher.get(), &QFileSystemWatcher::fileChanged, &_settling, changed);
        QObject::connect(_watcher.get(), &QFileSystemWatcher::directoryChanged, &_settling, changed);
    }
    rearm();
}

FileSettingsStore::Content FileSettingsStore::load() const {
    const FileContent file = readRegularFile(_path, kMaximumSize);
    if (file.state == FileContent::State::Missing) {
        return {};
    }
    Content content{{}, file.refusal};
    if (file.state == FileContent::State::Read) {
        content.values = decodeSettings(file.bytes, content.breakage).value_or(QVariantMap());
    }
    return content;
}

SettingsStore::Outcome FileSettingsStore::change(const std::function<void(QVariantMap &)> &edit) {
    const QString folderError = makeFolder(folder());
    if (!folderError.isEmpty()) {
        return fail(folderError);
    }
    const FileLock lock(lockPath());
    if (lock.state() != FileLock::State::Held) {
        return lock.state() == FileLock::State::Busy ? Outcome::TryLater : fail(lock.error());
    }
    const Content content = load();
    if (content.isBroken() && !setAside(content.breakage)) {
        return Outcome::Failed;
    }
    QVariantMap values = content.isBroken() ? _lastGood.value_or(QVariantMap()) : content.values;
    edit(values);
    if (!content.isBroken() && sameValue(values, content.values)) {
        _lastGood = values;
        return Outcome::Done;
    }
    return replace(values);
}

SettingsStore::Outcome FileSettingsStore::replace(const QVariantMap &values) {
    const QByteArray text = encodeSettings(values);
    if (text.size() > kMaximumSize) { // or the next start would refuse what we wrote
        return fail(QStringLiteral("they would be larger than %1 bytes").arg(kMaximumSize));
    }
    const QString error = replaceFile(followLinks(_path), text);
    if (!error.isEmpty()) {
        return fail(error);
    }
    _lastGood = values;
    return Outcome::Done;
}

SettingsStore::Outcome FileSettingsStore::fail(const QString &why) const {
    log(QStringLiteral("The settings in %1 were not saved: %2").arg(_path, why));
    return Outcome::Failed;
}

FileSettingsStore::Content FileSettingsStore::setAsideUnlessRepaired() {
    // Another process that starts right now sees the same: whoever comes second must not set aside the file
    // that the first has already written anew.
    const FileLock lock(lockPath());
    Content content = load();
    if (!content.isBroken()) {
        return content;
    }
    if (lock.state() == FileLock::State::Held) {
        return setAside(content.breakage) ? Content() : content;
    }
    const QString why = lock.state() == FileLock::State::Busy
                            ? QStringLiteral("another process keeps it locked")
                            : lock.error();
    log(QStringLiteral("Settings file %1 cannot be read (%2) and stays as it is (%3)")
            .arg(_path, content.breakage, why));
    return content;
}

bool FileSettingsStore::setAside(const QString &breakage) const {
    const QString kept = nameToKeepUnder(_path);
    if (std::rename(QFile::encodeName(_path).constData(), QFile::encodeName(kept).constData()) != 0) {
        log(QStringLiteral(
                "Settings file %1 cannot be read (%2), nor set aside (%3); it will not be written over")
                .arg(_path, breakage, systemError()));
        return false;
    }
    log(QStringLiteral("Settings file %1 cannot be read (%2); it is kept as %3")
            .arg(_path, breakage, QFileInfo(kept).fileName()));
    return true;
}

QString FileSettingsStore::folder() const {
    return QFileInfo(_path).absolutePath();
}

QString FileSettingsStore::lockPath() const {
    return _path + QStringLiteral(".lock");
}

void FileSettingsStore::rearm() {
    // What is watched is a file, not a name: after an exchange the new one has to be watched, though the
    // watcher may still list the name.
    const QStringList watched = _watcher->files() + _watcher->directories();
    if (!watched.isEmpty()) {
        _watcher->removePaths(watched);
    }
    // A folder may be made, or go, between the look and the watch; then what was watched is not what should
    // be.
    QString nearest;
    while (nearest != nearestFolder(folder())) {
        nearest = nearestFolder(folder());
        _watcher->addPath(nearest);
    }
    if (!_watcher->directories().contains(nearest) && !std::exchange(_saidUnwatched, true)) {
        log(QStringLiteral("Changes of the settings in %1 will not be noticed").arg(_path));
    }
    if (QFileInfo::exists(_path)) {
        _watcher->addPath(_path);
    }
}

void FileSettingsStore::fileMayHaveChanged() {
    rearm(); // first, or a change between the reading and the arming would go unseen
    _settling.start(QFileInfo::exists(_path) ? std::chrono::milliseconds(0) : _absenceToBelieve);
}

void FileSettingsStore::tellWatcher() {
    // Through the run loop, which holds an exception of an observer back; Qt would not.
    RunLoop::main().performAsync([weak = std::weak_ptr(_mayHaveChanged)] {
        if (const auto mayHaveChanged = weak.lock()) {
            (*mayHaveChanged)();
        }
    });
}

} // namespace barquell
