#include "platform/linux/FileSettingsStore.h"

#include "foundation/Values.h"
#include "platform/SettingsTest.h"
#include "platform/linux/FileAccess.h"

#include <gmock/gmock.h>

#include <QFileInfo>

#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <cstring>

namespace barquell {
namespace {

class FileSettingsStoreTest : public test::SettingsTest {
protected:
    mode_t mode(const QString &path) const {
        struct stat status = {};
        EXPECT_EQ(::stat(qPrintable(path), &status), 0);
        return status.st_mode & 07777;
    }
};

TEST_F(FileSettingsStoreTest, LiesInTheUsersConfigurationFolder) {
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(FileSettingsStore::defaultPath(),
              QStringLiteral("/somewhere/com.vexolith.barquell/settings.json"));
}

TEST_F(FileSettingsStoreTest, MakesItsFolderAndFileForTheOwnerAlone) {
    const QString path = folder.path(QStringLiteral("new/folder/settings.json"));
    EXPECT_EQ(FileSettingsStore(path).write(kKey, 1LL), Outcome::Done);
    EXPECT_EQ(mode(path), 0600U);
    EXPECT_EQ(mode(folder.path(QStringLiteral("new/folder"))), 0700U);
    EXPECT_EQ(mode(folder.path(QStringLiteral("new"))), 0700U);
}

TEST_F(FileSettingsStoreTest, KeepsTheModeOfTheFile) {
    folder.put("{}");
    ASSERT_EQ(::chmod(qPrintable(folder.path()), 0640), 0);
    FileSettingsStore(folder.path()).write(kKey, 1LL);
    EXPECT_EQ(mode(folder.path()), 0640U);
}

TEST_F(FileSettingsStoreTest, ALinkStaysALinkToTheWrittenFile) {
    const QString target = folder.path(QStringLiteral("elsewhere.json"));
    ASSERT_TRUE(QFile::link(QStringLiteral("elsewhere.json"), folder.path()));
    FileSettingsStore store(folder.path());
    EXPECT_TRUE(store.read().isEmpty()); // it leads to nothing yet
    for (const qint64 value : {1, 2}) {
        EXPECT_EQ(store.write(kKey, value), Outcome::Done);
        EXPECT_TRUE(QFileInfo(folder.path()).isSymbolicLink());
        EXPECT_TRUE(QFileInfo(target).isFile());
        EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, value}}));
    }
}

TEST_F(FileSettingsStoreTest, ClearsWhatAKilledWriterLeft) {
    QFile rest(folder.path(QStringLiteral("settings.json.new")));
    ASSERT_TRUE(rest.open(QIODevice::WriteOnly));
    EXPECT_EQ(FileSettingsStore(folder.path()).write(kKey, 1LL), Outcome::Done);
    EXPECT_FALSE(rest.exists());
}

TEST_F(FileSettingsStoreTest, AnEqualWriteLeavesTheFileAlone) {
    FileSettingsStore store(folder.path());
    store.write(kKey, 1LL);
    struct stat before = {};
    struct stat after = {};
    ::stat(qPrintable(folder.path()), &before);
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Done);
    ::stat(qPrintable(folder.path()), &after);
    EXPECT_EQ(before.st_ino, after.st_ino);
    store.write(kKey, true);
    EXPECT_TRUE(sameValue(store.read().value(kKey), true));
}

TEST_F(FileSettingsStoreTest, RefusesWhatCannotBeStored) {
    FileSettingsStore store(folder.path());
    EXPECT_EQ(store.write(kKey, QVariant()), Outcome::Failed);
    EXPECT_EQ(logged.lines.size(), 1);
    EXPECT_FALSE(QFile::exists(folder.path()));
}

struct Damage {
    const char *name;
    QByteArray bytes;
    const char *reason;

    friend std::ostream &operator<<(std::ostream &stream, const Damage &damage) {
        return stream << damage.reason;
    }
};

class DamagedSettings : public FileSettingsStoreTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedSettings, AreSetAsideWholeAndTheStoreBeginsEmpty) {
    folder.put(GetParam().bytes);
    FileSettingsStore store(folder.path());
    EXPECT_TRUE(store.read().isEmpty());
    expectSetAside(QString::fromLatin1(GetParam().reason));
    EXPECT_EQ(folder.bytes(folder.setAside().first()), GetParam().bytes);
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Done);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 1LL}}));
    EXPECT_EQ(logged.lines.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Each, DamagedSettings,
                         testing::Values(Damage{"Empty", "", "it is empty"},
                                         Damage{"Cut", R"({"a": 1, "b": [1, 2)", "at byte"},
                                         Damage{"Text", "Lorem ipsum", "at byte"},
                                         Damage{"List", "[1]", "not a JSON object"},
                                         Damage{"Zeros", QByteArray(4096, '\0'), "at byte"},
                                         Damage{"BadUtf8", "{\"a\": \"\xFF\xFE\"}", "at byte"},
                                         Damage{"Null", R"({"a": null})", "null"},
                                         Damage{"Huge", QByteArray((16 << 20) + 1, ' '), "larger than"}),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST_F(FileSettingsStoreTest, WhatABrokenFileSaysStaysInOneShortLine) {
    folder.put(R"({"a": {"$date": "x\ny\u001b[31mred)" + QByteArray(5'000'000, 'x') + "\"}}");
    FileSettingsStore(folder.path()).read();
    expectSetAside(QStringLiteral("cannot be \"x?y?[31mredxxx"));
    EXPECT_LE(logged.lines.first().size(), 500);
    EXPECT_EQ(logged.lines.first(), cleanLine(logged.lines.first()));
}

TEST_F(FileSettingsStoreTest, ReadingAndWatchingMakeNothing) {
    FileSettingsStore store(folder.path(QStringLiteral("new/folder/settings.json")));
    EXPECT_TRUE(store.read().isEmpty());
    store.watch([] {});
    EXPECT_FALSE(QFileInfo::exists(folder.path(QStringLiteral("new"))));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(FileSettingsStoreTest, WhereNoFolderCanBeOnlyTheWriteComplainsAndOnce) {
    FileSettingsStore store(QStringLiteral("/proc/nope/com.vexolith.barquell/settings.json"));
    EXPECT_TRUE(store.read().isEmpty());
    store.watch([] {});
    EXPECT_TRUE(logged.lines.isEmpty());
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Failed);
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(FileSettingsStoreTest, APipeIsSetAsideWithoutWaiting) {
    ASSERT_EQ(::mkfifo(qPrintable(folder.path()), 0600), 0);
    EXPECT_TRUE(FileSettingsStore(folder.path()).read().isEmpty());
    expectSetAside(QStringLiteral("not a regular file"));
}

TEST_F(FileSettingsStoreTest, AFolderInThePlaceOfTheFileIsSetAside) {
    ASSERT_TRUE(QDir().mkdir(folder.path()));
    EXPECT_TRUE(FileSettingsStore(folder.path()).read().isEmpty());
    expectSetAside(QStringLiteral("not a regular file"));
}

TEST_F(FileSettingsStoreTest, OfALinkToADeviceTheLinkIsSetAside) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/null"), folder.path()));
    FileSettingsStore store(folder.path());
    EXPECT_TRUE(store.read().isEmpty());
    expectSetAside(QStringLiteral("not a regular file"));
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Done);
    EXPECT_TRUE(QFileInfo(folder.path()).isFile());
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
}

TEST_F(FileSettingsStoreTest, ALinkToItselfIsSetAside) {
    ASSERT_TRUE(QFile::link(QStringLiteral("settings.json"), folder.path()));
    FileSettingsStore store(folder.path());
    EXPECT_TRUE(store.read().isEmpty());
    expectSetAside(QString::fromLocal8Bit(std::strerror(ELOOP)));
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Done);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 1LL}}));
}

TEST_F(FileSettingsStoreTest, SettingAsideOverwritesNothing) {
    for (const char *bytes : {"first", "second", "third"}) {
        folder.put(bytes);
        FileSettingsStore(folder.path()).read();
    }
    QStringList kept;
    for (const QString &name : folder.setAside()) {
        kept.append(QString::fromLatin1(folder.bytes(name)));
    }
    EXPECT_THAT(kept, testing::UnorderedElementsAre(QStringLiteral("first"), QStringLiteral("second"),
                                                    QStringLiteral("third")));
}

TEST_F(FileSettingsStoreTest, AFileThatBreaksWhileWeRunIsLeftToItsEditor) {
    FileSettingsStore store(folder.path());
    store.write(kKey, 1LL);
    folder.put(R"({"key": 2, "oth)");
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 1LL}}));
    EXPECT_TRUE(folder.setAside().isEmpty());
    EXPECT_TRUE(logged.lines.isEmpty());
    folder.put(R"({"key": 2, "other": 3})");
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 2LL}, {QStringLiteral("other"), 3LL}}));
}

TEST_F(FileSettingsStoreTest, AWriteOverABrokenFileSetsItAsideAndBringsEverythingBack) {
    folder.put(R"({"mine": 1, "others": [2]})");
    FileSettingsStore store(folder.path());
    store.read();
    folder.put(R"({"mine": )");
    EXPECT_EQ(store.write(kKey, 3LL), Outcome::Done);
    expectSetAside(QStringLiteral("at byte"));
    EXPECT_EQ(folder.bytes(folder.setAside().first()), R"({"mine": )");
    const QVariantMap expected{
        {QStringLiteral("mine"), 1LL}, {QStringLiteral("others"), QVariantList{2LL}}, {kKey, 3LL}};
    EXPECT_TRUE(sameValue(FileSettingsStore(folder.path()).read(), expected));
}

TEST_F(FileSettingsStoreTest, ALockThatIsNotGivenBackMakesAWriteTryLater) {
    FileSettingsStore store(folder.path());
    store.write(kKey, 1LL);
    {
        const FileLock lock(folder.path(QStringLiteral("settings.json.lock")));
        ASSERT_EQ(lock.state(), FileLock::State::Held);
        EXPECT_EQ(store.write(kKey, 2LL), Outcome::TryLater);
        EXPECT_EQ(store.remove(kKey), Outcome::TryLater);
        EXPECT_EQ(store.removeDomain(), Outcome::TryLater);
        EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 1LL}})); // reading needs no lock
        EXPECT_TRUE(logged.lines.isEmpty());
    }
    EXPECT_EQ(store.write(kKey, 2LL), Outcome::Done);
}

TEST_F(FileSettingsStoreTest, ABrokenFileUnderALockStaysUntilAWriteNeedsItsPlace) {
    folder.put("broken");
    FileSettingsStore store(folder.path());
    {
        const FileLock lock(folder.path(QStringLiteral("settings.json.lock")));
        EXPECT_TRUE(store.read().isEmpty());
        EXPECT_EQ(logged.lines.size(), 1);
        EXPECT_EQ(folder.bytes(), "broken");
    }
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Done);
    ASSERT_EQ(folder.setAside().size(), 1);
    EXPECT_EQ(folder.bytes(folder.setAside().first()), "broken");
}

TEST_F(FileSettingsStoreTest, SettingsThatWouldBeTooLargeToReadAreNotWritten) {
    FileSettingsStore store(folder.path());
    store.write(kKey, 1LL);
    const QByteArray before = folder.bytes();
    EXPECT_EQ(store.write(QStringLiteral("large"), QByteArray(16 << 20, 'x')), Outcome::Failed);
    EXPECT_EQ(folder.bytes(), before);
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(FileSettingsStoreTest, AWriteThatTheDiskHasNoRoomForLeavesTheOldFile) {
    FileSettingsStore store(folder.path());
    store.write(kKey, 1LL);
    const QByteArray before = folder.bytes();
    ASSERT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{4096, old.rlim_max}; // the write ends half-way through
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(store.write(QStringLiteral("large"), QByteArray(65536, 'x')), Outcome::Failed);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
    EXPECT_EQ(folder.bytes(), before);
    EXPECT_FALSE(QFile::exists(folder.path(QStringLiteral("settings.json.new"))));
    EXPECT_EQ(logged.lines.size(), 1);
    EXPECT_EQ(store.write(QStringLiteral("large"), QByteArray(65536, 'x')), Outcome::Done);
}

TEST_F(FileSettingsStoreTest, AFolderThatCannotBeMadeIsSaidOnceForEachWrite) {
    folder.put("{}"); // a file where the folder should be
    FileSettingsStore store(folder.path(QStringLiteral("settings.json/below/settings.json")));
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::Failed);
    EXPECT_EQ(logged.lines.size(), 1);
    EXPECT_EQ(folder.bytes(), "{}");
}

} // namespace
} // namespace barquell
