// What a write asks of the disk, and in which order: the calls are watched, and made to fail, in the C
// library's place.

#include "foundation/Values.h"
#include "platform/SettingsTest.h"
#include "platform/linux/FileSettingsStore.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

struct Disk {
    QStringList calls;
    QString failing; // the call that fails
};

Disk &disk() {
    static Disk disk;
    return disk;
}

bool fails(const QString &call) {
    disk().calls.append(call);
    if (disk().failing != call) {
        return false;
    }
    errno = EIO;
    return true;
}

} // namespace

extern "C" int fsync(int file) {
    struct stat status = {};
    ::fstat(file, &status);
    const bool folder = S_ISDIR(status.st_mode);
    return fails(folder ? QStringLiteral("sync folder") : QStringLiteral("sync file"))
               ? -1
               : static_cast<int>(::syscall(SYS_fsync, file));
}

extern "C" int rename(const char *from, const char *to) noexcept {
    return fails(QStringLiteral("rename")) ? -1 : static_cast<int>(::syscall(SYS_rename, from, to));
}

namespace barquell {
namespace {

class SettingsFaultsTest : public test::SettingsTest {
protected:
    SettingsFaultsTest() {
        store.write(kKey, 1LL);
        before = folder.bytes();
        disk() = {};
    }

    FileSettingsStore store{folder.path()};
    QByteArray before;
};

TEST_F(SettingsFaultsTest, TheNewFileIsOnTheDiskBeforeItTakesTheOldOnesPlace) {
    EXPECT_EQ(store.write(kKey, 2LL), Outcome::Done);
    EXPECT_THAT(disk().calls, testing::ElementsAre(QStringLiteral("sync file"), QStringLiteral("rename"),
                                                   QStringLiteral("sync folder")));
}

TEST_F(SettingsFaultsTest, AWriteThatFailsLeavesTheOldFileAndOneLine) {
    for (const char *call : {"sync file", "rename"}) {
        logged.lines.clear();
        disk().failing = QString::fromLatin1(call);
        EXPECT_EQ(store.write(kKey, 2LL), Outcome::Failed) << call;
        EXPECT_EQ(folder.bytes(), before) << call;
        EXPECT_EQ(logged.lines.size(), 1) << call;
        EXPECT_FALSE(QFile::exists(folder.path(QStringLiteral("settings.json.new")))) << call;
    }
    disk() = {};
    EXPECT_EQ(store.write(kKey, 2LL), Outcome::Done);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 2LL}}));
}

TEST_F(SettingsFaultsTest, ABrokenFileThatCannotBeSetAsideIsNotWrittenOver) {
    folder.put("broken");
    disk().failing = QStringLiteral("rename");
    FileSettingsStore starting(folder.path());
    EXPECT_TRUE(starting.read().isEmpty());
    EXPECT_EQ(logged.lines.size(), 1);
    EXPECT_EQ(starting.write(kKey, 2LL), Outcome::Failed);
    EXPECT_EQ(logged.lines.size(), 2);
    EXPECT_EQ(folder.bytes(), "broken");
    disk() = {};
    EXPECT_EQ(starting.write(kKey, 2LL), Outcome::Done);
    ASSERT_EQ(folder.setAside().size(), 1);
    EXPECT_EQ(folder.bytes(folder.setAside().first()), "broken");
}

/// Root may open everything, so the test becomes somebody else for a while.
class AsNobody {
public:
    explicit AsNobody(const QString &folder) : _root(::geteuid() == 0) {
        if (_root) {
            constexpr uid_t nobody = 65534;
            const bool done = ::chown(qPrintable(folder), nobody, nobody) == 0 && ::seteuid(nobody) == 0;
            EXPECT_TRUE(done);
        }
    }
    ~AsNobody() {
        if (_root) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    Q_DISABLE_COPY_MOVE(AsNobody)

private:
    bool _root;
};

TEST_F(SettingsFaultsTest, AFileThatMayNotBeOpenedIsSetAside) {
    ASSERT_EQ(::chmod(qPrintable(folder.path()), 0), 0);
    ASSERT_TRUE(QFile::remove(folder.path(QStringLiteral("settings.json.lock"))));
    const AsNobody nobody(QFileInfo(folder.path()).path());
    FileSettingsStore starting(folder.path());
    EXPECT_TRUE(starting.read().isEmpty());
    expectSetAside(QString::fromLocal8Bit(std::strerror(EACCES)));
    EXPECT_EQ(starting.write(kKey, 2LL), Outcome::Done);
    EXPECT_TRUE(sameValue(starting.read(), QVariantMap{{kKey, 2LL}}));
}

TEST_F(SettingsFaultsTest, AFolderThatMayNotBeWrittenMakesAWriteFailWithOneLine) {
    ASSERT_TRUE(QFile::remove(folder.path(QStringLiteral("settings.json.lock"))));
    const QString path = QFileInfo(folder.path()).path();
    const AsNobody nobody(path);
    ASSERT_EQ(::chmod(qPrintable(path), 0500), 0);
    EXPECT_EQ(store.write(kKey, 2LL), Outcome::Failed);
    EXPECT_EQ(logged.lines.size(), 1);
    ASSERT_EQ(::chmod(qPrintable(path), 0700), 0);
}

TEST_F(SettingsFaultsTest, AFolderThatMayNotBeWatchedIsSaidOnce) {
    const QString path = QFileInfo(folder.path()).path();
    const AsNobody nobody(path);
    ASSERT_EQ(::chmod(qPrintable(path), 0300), 0);
    store.watch([] {});
    store.watch([] {});
    EXPECT_EQ(logged.lines.size(), 1);
    ASSERT_EQ(::chmod(qPrintable(path), 0700), 0);
}

} // namespace
} // namespace barquell
