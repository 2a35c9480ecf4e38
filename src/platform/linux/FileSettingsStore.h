#pragma once

#include "platform/SettingsStore.h"

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

namespace barquell {

/// The settings in one file (see SettingsFile), which lies in a folder of its own beside its lock.
///
/// A write takes the lock, reads the file, changes one key and replaces the file as a whole, so that no
/// process loses another's keys and a power cut leaves the old file or the new one. A file that cannot be
/// read is never written over: it is renamed to "settings.json.broken-<UTC>" at the start, or when it is in
/// the way of a write. In between, it may just be half-way through an editor's hands: what was last read
/// holds, and a write brings all of it back.
///
/// A symbolic link is followed for reading and writing; set aside is the link. A setting that stays away for
/// a moment while an editor exchanges the file is not taken for deleted. Reading and watching make nothing,
/// the folder neither: where it is not there, the nearest one above it is watched. Main thread only.
class FileSettingsStore final : public SettingsStore {
public:
    /// In the user's configuration folder (XDG_CONFIG_HOME).
    static QString defaultPath();

    /// How long a file that is gone may yet come back before it counts as deleted. An editor that moves the
    /// old file away before it writes the new one needs less.
    static constexpr std::chrono::milliseconds kAbsenceToBelieve{100};

    explicit FileSettingsStore(QString path = defaultPath(),
                               std::chrono::milliseconds absenceToBelieve = kAbsenceToBelieve);
    ~FileSettingsStore() override;
    Q_DISABLE_COPY_MOVE(FileSettingsStore)

    QVariantMap read() override;
    Outcome write(const QString &key, const QVariant &value) override;
    Outcome remove(const QString &key) override;
    Outcome removeDomain() override;
    void watch(std::function<void()> mayHaveChanged) override;

private:
    /// What lies in the file now. Broken: the reason is set.
    struct Content {
        QVariantMap values;
        QString breakage;

        bool isBroken() const { return !breakage.isEmpty(); }
    };

    Content load() const;
    Outcome change(const std::function<void(QVariantMap &)> &edit);
    Outcome replace(const QVariantMap &values);
    Outcome fail(const QString &why) const;
    Content setAsideUnlessRepaired();
    bool setAside(const QString &breakage) const;
    QString folder() const;
    QString lockPath() const;
    void rearm();
    void fileMayHaveChanged();
    void tellWatcher();

    const QString _path;
    const std::chrono::milliseconds _absenceToBelieve;
    std::optional<QVariantMap> _lastGood;                   // nothing before the first look
    std::shared_ptr<std::function<void()>> _mayHaveChanged; // calls under way die with it
    std::unique_ptr<QFileSystemWatcher> _watcher;
    bool _saidUnwatched = false;
    QTimer _settling;
};

} // namespace barquell
