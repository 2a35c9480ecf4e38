// What a running program notices of its settings file.

#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "foundation/VirtualRunLoop.h"
#include "platform/SettingsTest.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/ChangeRecorder.h"
#include "support/Wait.h"

#include <unistd.h>

#include <memory>
#include <stdexcept>

namespace barquell {
namespace {

const QString kOther = QStringLiteral("other");
constexpr std::chrono::milliseconds kQuiet{300}; // longer than an absence is doubted

class FileSettingsWatchTest : public test::SettingsTest {
protected:
    void start(std::chrono::milliseconds absence = FileSettingsStore::kAbsenceToBelieve) {
        startAt(folder.path(), absence);
    }

    void startAt(const QString &path,
                 std::chrono::milliseconds absence = FileSettingsStore::kAbsenceToBelieve) {
        store = std::make_unique<FileSettingsStore>(path, absence);
        defaults = std::make_unique<UserDefaults>(store.get());
        defaults->addObserver(recorder, kKey, {});
        defaults->addObserver(recorder, kOther, {});
    }

    /// Waits for the next change and expects it to be the only one.
    void expectTold(const QString &key, const QVariant &value) {
        ASSERT_TRUE(test::waitFor([this] { return !recorder.changes.isEmpty(); }));
        test::runFor(kQuiet);
        ASSERT_EQ(recorder.changes.size(), 1);
        EXPECT_EQ(recorder.changes.first().first, key);
        EXPECT_TRUE(value.isValid() ? sameValue(recorder.changes.first().second, value)
                                    : isNullObject(recorder.changes.first().second));
        recorder.changes.clear();
    }

    void expectNothingTold() {
        test::runFor(kQuiet);
        EXPECT_TRUE(recorder.changes.isEmpty());
    }

    std::unique_ptr<FileSettingsStore> store;
    std::unique_ptr<UserDefaults> defaults;
    test::ChangeRecorder recorder;
};

TEST_F(FileSettingsWatchTest, AnExchangedFileIsNoticedAgainAndAgain) {
    folder.put(R"({"key": 0, "other": 5})");
    start();
    for (const char digit : {'1', '2', '3'}) {
        folder.exchange(QByteArray(R"({"key": )") + digit + R"(, "other": 5})");
        expectTold(kKey, qlonglong{digit - '0'});
    }
}

TEST_F(FileSettingsWatchTest, AnEditInPlaceIsNoticedAgainAndAgain) {
    folder.put("{}");
    start();
    for (const char digit : {'1', '2', '3'}) {
        folder.put(QByteArray(R"({"key": )") + digit + "}");
        expectTold(kKey, qlonglong{digit - '0'});
    }
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(FileSettingsWatchTest, AnEditInPlaceAfterAnExchangeIsNoticed) {
    folder.put("{}");
    start();
    folder.exchange(R"({"key": 1})");
    expectTold(kKey, 1LL);
    folder.put(R"({"key": 2})");
    expectTold(kKey, 2LL);
}

TEST_F(FileSettingsWatchTest, AnEditInPlaceIsNoticedAlsoWhereABackupKeepsTheOldFileAlive) {
    folder.put("{}");
    start();
    ASSERT_EQ(::link(qPrintable(folder.path()), qPrintable(folder.path(QStringLiteral("backup")))), 0);
    folder.exchange(R"({"key": 1})");
    expectTold(kKey, 1LL);
    folder.put(R"({"key": 2})");
    expectTold(kKey, 2LL);
}

TEST_F(FileSettingsWatchTest, AHalfWrittenFileChangesNothingUntilItIsWhole) {
    folder.put(R"({"key": 1})");
    start();
    folder.put(R"({"key": 2, "oth)");
    expectNothingTold();
    folder.put(R"({"key": 1, "other": 3})");
    expectTold(kOther, 3LL);
    EXPECT_TRUE(folder.setAside().isEmpty());
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(FileSettingsWatchTest, ADeletedFileIsAnEmptyDomainAndANewOneIsNoticed) {
    folder.put(R"({"key": 1})");
    start();
    ASSERT_TRUE(QFile::remove(folder.path()));
    expectTold(kKey, QVariant());
    folder.put(R"({"key": 2})");
    expectTold(kKey, 2LL);
}

TEST_F(FileSettingsWatchTest, AnAbsenceOfAMomentIsNotADeletion) {
    folder.put(R"({"key": 1})");
    start(std::chrono::hours(1));
    ASSERT_TRUE(QFile::rename(folder.path(), folder.path(QStringLiteral("backup"))));
    expectNothingTold(); // it is noticed, but not yet believed
    folder.put(R"({"key": 1, "other": 2})");
    expectTold(kOther, 2LL);
}

TEST_F(FileSettingsWatchTest, TheFirstFileEverIsNoticed) {
    start();
    folder.put(R"({"key": 1})");
    expectTold(kKey, 1LL);
}

TEST_F(FileSettingsWatchTest, AFolderThatWasRemovedIsWatchedAgain) {
    const QString path = folder.path(QStringLiteral("config/settings.json"));
    FileSettingsStore(path).write(kKey, 1LL);
    startAt(path);
    ASSERT_TRUE(QDir(folder.path(QStringLiteral("config"))).removeRecursively());
    expectTold(kKey, QVariant());
    FileSettingsStore(path).write(kKey, 2LL);
    expectTold(kKey, 2LL);
}

TEST_F(FileSettingsWatchTest, AFolderThatIsYetToBeMadeIsWatchedAsSoonAsItIsThere) {
    const QString path = folder.path(QStringLiteral("config/deeper/settings.json"));
    startAt(path);
    ASSERT_TRUE(QDir().mkdir(folder.path(QStringLiteral("config"))));
    expectNothingTold();
    FileSettingsStore(path).write(kKey, 1LL);
    expectTold(kKey, 1LL);
    FileSettingsStore(path).write(kKey, 2LL);
    expectTold(kKey, 2LL);
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(FileSettingsWatchTest, AnExceptionOfTheWatcherIsOneLineAndItIsCalledAgain) {
    folder.put("{}");
    FileSettingsStore watched(folder.path());
    watched.watch([] { throw std::runtime_error("no way"); });
    const QString line = QStringLiteral("Uncaught exception in the run loop: no way");
    for (const char *bytes : {R"({"key": 1})", R"({"key": 2})"}) {
        logged.lines.clear();
        folder.exchange(bytes);
        ASSERT_TRUE(test::waitFor([this] { return !logged.lines.isEmpty(); }));
        EXPECT_EQ(logged.lines.first(), line);
        test::runFor(kQuiet);
    }
}

TEST_F(FileSettingsWatchTest, TheWatcherIsCalledFromTheMainRunLoopWhicheverThatIs) {
    VirtualRunLoop loop;
    RunLoop::setMain(&loop);
    start();
    folder.put(R"({"key": 1})");
    test::runFor(kQuiet);
    EXPECT_TRUE(recorder.changes.isEmpty());
    loop.runPending();
    EXPECT_EQ(recorder.changes.size(), 1);
    folder.put(R"({"key": 2})");
    test::runFor(kQuiet);
    defaults.reset();
    store.reset();
    loop.runPending(); // nobody is left to be called
    EXPECT_EQ(recorder.changes.size(), 1);
    RunLoop::setMain(nullptr);
}

TEST_F(FileSettingsWatchTest, BehindALinkTheFileIsWatchedToo) {
    const QString target = folder.path(QStringLiteral("target/settings.json"));
    FileSettingsStore(target).write(kKey, 1LL);
    ASSERT_TRUE(QFile::link(target, folder.path()));
    start();
    FileSettingsStore(target).write(kKey, 2LL); // exchanges the file
    expectTold(kKey, 2LL);
    folder.put(R"({"key": 3})"); // writes through the link
    expectTold(kKey, 3LL);
}

TEST_F(FileSettingsWatchTest, OurOwnWritesAreToldOnceEach) {
    start();
    defaults->setObject(1, kKey);
    expectTold(kKey, 1LL);
    defaults->setObject(1, kKey);
    expectTold(kKey, 1LL);
    defaults->removeObjectForKey(kKey);
    expectTold(kKey, QVariant());
    expectNothingTold();
}

TEST_F(FileSettingsWatchTest, AnotherStoresKeyIsToldBesideOurOwn) {
    start();
    FileSettingsStore(folder.path()).write(kOther, 1LL);
    defaults->setObject(1, kKey);
    EXPECT_TRUE(test::waitFor([this] { return recorder.changes.size() == 2; }));
    test::runFor(kQuiet);
    EXPECT_EQ(recorder.changes.size(), 2);
}

} // namespace
} // namespace barquell
