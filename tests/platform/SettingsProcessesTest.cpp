// Several processes on one settings file, some of which die at their work.

#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/SettingsFolder.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/LogCapture.h"
#include "support/SettingsProcess.h"
#include "support/Wait.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <csignal>
#include <thread>
#include <vector>

namespace barquell {
namespace {

using Outcome = SettingsStore::Outcome;
using test::SettingsProcess;

const QString kKey = QStringLiteral("key");

TEST(SettingsProcesses, WritingDifferentKeysLoseNone) {
    const test::SettingsFolder folder;
    constexpr int count = 150;
    const QString arguments = QString::number(count);
    SettingsProcess first(QStringLiteral("write"), folder.path(), {QStringLiteral("a"), arguments});
    SettingsProcess second(QStringLiteral("write"), folder.path(), {QStringLiteral("b"), arguments});
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_EQ(second.exitCode(), 0);
    const QVariantMap values = FileSettingsStore(folder.path()).read();
    EXPECT_EQ(values.size(), 2 * count);
    for (qlonglong number = 0; number < count; ++number) {
        EXPECT_TRUE(sameValue(values.value(QStringLiteral("a%1").arg(number)), number));
        EXPECT_TRUE(sameValue(values.value(QStringLiteral("b%1").arg(number)), number));
    }
}

/// Which number the parts have, all of them the same one.
qlonglong numberOfParts(const QVariantMap &values) {
    const QVariantList parts = values.value(QStringLiteral("parts")).toList();
    EXPECT_EQ(parts.size(), 5000);
    EXPECT_EQ(parts.count(parts.value(0)), parts.size());
    return parts.value(0).toLongLong();
}

TEST(SettingsProcesses, KilledAtAnyStepOfAWriteLeaveTheOldFileOrTheNew) {
    const test::LogCapture logged;
    const test::SettingsFolder folder;
    FileSettingsStore store(folder.path());
    store.write(kKey, QStringLiteral("untouched"));
    std::vector<qlonglong> kept;
    int halves = 0;
    int exitCode = -1;
    for (int step = 0; exitCode != 0; ++step) {
        ASSERT_EQ(store.write(QStringLiteral("parts"), QVariantList(5000, 1LL)), Outcome::Done);
        SettingsProcess writer(QStringLiteral("die"), folder.path(),
                               {QStringLiteral("2"), QString::number(step)});
        exitCode = writer.exitCode();
        ASSERT_EQ(exitCode, writer.process().exitStatus() == QProcess::CrashExit ? -1 : 0);
        const qint64 rest = QFileInfo(folder.path(QStringLiteral("settings.json.new"))).size();
        halves += rest > 0 && rest < QFileInfo(folder.path()).size() / 2 + 1 ? 1 : 0;
        const QVariantMap values = FileSettingsStore(folder.path()).read();
        EXPECT_EQ(values.value(kKey), QStringLiteral("untouched"));
        kept.push_back(numberOfParts(values));
    }
    // Before the clearing, the mode, the content, its way to the disk and the exchange; before the folder's
    // way to the disk; and unharmed.
    EXPECT_THAT(kept, testing::ElementsAre(1, 1, 1, 1, 1, 2, 2));
    EXPECT_EQ(halves, 1);
    EXPECT_TRUE(folder.setAside().isEmpty());
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST(SettingsProcesses, KilledAtAnyMomentLeaveAWholeFile) {
    const test::LogCapture logged;
    const test::SettingsFolder folder;
    FileSettingsStore store(folder.path());
    store.write(kKey, QStringLiteral("untouched"));
    constexpr int kills = 100;
    for (int round = 0; round < kills; ++round) {
        SettingsProcess writer(QStringLiteral("churn"), folder.path());
        ASSERT_TRUE(writer.isReady());
        std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(15000)));
        writer.process().kill();
        ASSERT_TRUE(writer.process().waitForFinished());
        ASSERT_EQ(writer.process().exitStatus(), QProcess::CrashExit);
        const QVariantMap values = store.read();
        EXPECT_GE(numberOfParts(values), 0);
        ASSERT_EQ(values.value(kKey), QStringLiteral("untouched"));
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_TRUE(folder.setAside().isEmpty());
    EXPECT_TRUE(logged.lines.isEmpty());
    EXPECT_EQ(store.write(kKey, QStringLiteral("touched")), Outcome::Done);
}

TEST(SettingsProcesses, OneThatIsStoppedWithTheLockHoldsNobodyUp) {
    const test::LogCapture logged;
    const test::SettingsFolder folder;
    SettingsProcess holder(QStringLiteral("hold"), folder.path());
    ASSERT_TRUE(holder.isReady());
    ::kill(static_cast<pid_t>(holder.process().processId()), SIGSTOP);
    FileSettingsStore store(folder.path());
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(store.write(kKey, 1LL), Outcome::TryLater);
    EXPECT_LT(timer.elapsed(), 1000);

    UserDefaults defaults(&store);
    defaults.setObject(2, kKey);
    EXPECT_EQ(defaults.integerForKey(kKey), 2);
    EXPECT_TRUE(store.read().isEmpty());
    holder.process().kill();
    ASSERT_TRUE(holder.process().waitForFinished());
    EXPECT_TRUE(test::waitFor([&] { return sameValue(store.read(), QVariantMap{{kKey, 2LL}}); }));
    EXPECT_TRUE(logged.lines.isEmpty());
}

} // namespace
} // namespace barquell
