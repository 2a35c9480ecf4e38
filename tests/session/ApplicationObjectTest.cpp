#include "PrivateBus.h"

#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/session/ApplicationObject.h"
#include "platform/linux/session/MessageBus.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QDBusPendingReply>
#include <QTimer>

namespace barquell::test {

namespace {

/// The object on a bus, with commands that write a real settings file.
class ApplicationObjectTest : public testing::Test {
protected:
    ApplicationObjectTest() {
        object.commands = {
            .toggleTouchBar = [this] { store(QStringLiteral("toggle")); },
            .setTouchBarActive =
                [this](bool active) { store(active ? QStringLiteral("on") : QStringLiteral("off")); },
            .status =
                [this] {
                    return QVariantMap{{QStringLiteral("done"), done.size()}};
                }};
        EXPECT_TRUE(object.exportOn(session.connection()));
    }

    QDBusMessage message(const char *member, const QVariantList &arguments = {}) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            session.connection().baseService(), ApplicationObject::path(),
            QStringLiteral("com.vexolith.barquell"), QString::fromLatin1(member));
        call.setArguments(arguments);
        return call;
    }

    QDBusPendingCall ask(const char *member, const QVariantList &arguments = {}) {
        return other.connection().asyncCall(message(member, arguments));
    }

    void store(const QString &what) {
        done.append(what);
        EXPECT_EQ(file.write(QStringLiteral("Active"), done.size()), SettingsStore::Outcome::Done);
    }

    LogCapture lines;
    QTemporaryDir folder;
    FileSettingsStore file{folder.filePath(QStringLiteral("settings.json"))};
    PrivateBus bus;
    SessionBus session;
    OtherProgram other{bus};
    ApplicationObject object{[](const QVariantMap &) {}};
    QStringList done;
};

} // namespace

TEST_F(ApplicationObjectTest, ABurstOfCallsIsDoneWholeAndHoldsNothingElseUp) {
    constexpr int kBurst = 2000;
    for (int each = 0; each < kBurst; ++each) {
        ASSERT_TRUE(other.connection().send(message("ToggleTouchBar"))); // wants no answer
    }
    const QDBusPendingReply<QVariantMap> status = ask("Status");
    int turns = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, &beat, [&turns] { ++turns; });
    beat.start(0);
    ASSERT_TRUE(waitFor([&status] { return status.isFinished(); }));
    EXPECT_LT(status.value().value(QStringLiteral("done")).toInt(), kBurst / 2);
    EXPECT_TRUE(waitFor([this] { return done.size() >= kBurst; }, std::chrono::minutes(2)));
    EXPECT_EQ(done.size(), kBurst);
    EXPECT_EQ(file.read().value(QStringLiteral("Active")).toInt(), kBurst);
    EXPECT_GT(turns, kBurst / 2);
    EXPECT_TRUE(lines.lines.isEmpty());
}

TEST_F(ApplicationObjectTest, CallsKeepTheirOrderAndAreAnsweredWhenTheyAreDone) {
    const QDBusPendingCall on = ask("SetTouchBarActive", {true});
    const QDBusPendingCall toggle = ask("ToggleTouchBar");
    const QDBusPendingCall off = ask("SetTouchBarActive", {false});
    ASSERT_TRUE(waitFor([&on] { return on.isFinished(); }));
    EXPECT_GE(done.size(), 1);
    ASSERT_TRUE(waitFor([&off] { return off.isFinished(); }));
    EXPECT_EQ(done, (QStringList{QStringLiteral("on"), QStringLiteral("toggle"), QStringLiteral("off")}));
    ASSERT_TRUE(waitFor([&toggle] { return toggle.isFinished(); }));
    EXPECT_FALSE(on.isError() || toggle.isError() || off.isError());
}

TEST_F(ApplicationObjectTest, ACommandThatIsMissingIsAnsweredAndDoesNothing) {
    object.commands = {};
    const QDBusPendingCall toggle = ask("ToggleTouchBar");
    ASSERT_TRUE(waitFor([&toggle] { return toggle.isFinished(); }));
    EXPECT_FALSE(toggle.isError());
    EXPECT_TRUE(done.isEmpty());
}

TEST_F(ApplicationObjectTest, AFloodWithoutEndIsAnsweredWithAnErrorAndSaidOnce) {
    object.commands.status = [this] {
        for (int each = 0; each < 65537; ++each) { // one more than there is room for
            object.performInTurn(message("ToggleTouchBar"), "", [] {});
        }
        return QVariantMap();
    };
    EXPECT_TRUE(waitFor([this] { // the turns go on meanwhile, and may make room for the call again
        ask("Status");
        QDBusPendingCall refused = ask("ToggleTouchBar");
        return waitFor([&refused] { return refused.isFinished(); }, std::chrono::seconds(1)) &&
               refused.error().type() == QDBusError::LimitsExceeded;
    }));
    EXPECT_EQ(lines.lines, QStringList{QStringLiteral("ToggleTouchBar comes too often; some are left out")});
}

} // namespace barquell::test
