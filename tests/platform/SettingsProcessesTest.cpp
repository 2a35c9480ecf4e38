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

TEST(SettingsProcesses, KilledWhileWritingLeaveAWholeFile) {
    const test::LogCapture logged;
    const test::SettingsFolder folder;
    FileSettingsStore store(folder.path());
    store.write(kKey, QStringLiteral("untouched"));
    int unfinished = 0;
    constexpr int kills = 100;
    for (int round = 0; round < kills; ++round) {
        SettingsProcess writer(QStringLiteral("churn"), folder.path());
        ASSERT_TRUE(writer.isReady());
        std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(15000)));
        writer.process().kill();
        ASSERT_TRUE(writer.process().waitForFinished());
        ASSERT_EQ(writer.process().exitStatus(), QProcess::CrashExit);
        const QVariantMap values = store.read();
        const QVariantList parts = values.value(QStringLiteral("parts")).toList();
        ASSERT_EQ(parts.size(), 5000);
        ASSERT_EQ(parts.count(parts.first()), parts.size());
        ASSERT_EQ(values.value(kKey), QStringLiteral("untouched"));
        unfinished += QFile::exists(folder.path(QStringLiteral("settings.json.new"))) ? 1 : 0;
    }
    RecordProperty("unfinished", unfinished);
    EXPECT_GT(unfinished, 0); // or none died at the writing itself
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
