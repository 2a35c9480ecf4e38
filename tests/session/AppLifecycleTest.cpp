#include "LifeProcess.h"
#include "PrivateBus.h"

#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/RunningCopies.h"
#include "platform/linux/session/RunningProgram.h"

namespace barquell::test {

namespace {

using Outcome = RunningProgram::Outcome;

QStringList lines(std::initializer_list<const char *> texts) {
    QStringList list;
    for (const char *text : texts) {
        list.append(QString::fromUtf8(text));
    }
    return list;
}

class AppLifecycleTest : public testing::Test {
protected:
    AppLifecycleTest() { qputenv("XDG_RUNTIME_DIR", _runtime.path().toUtf8()); }

    /// What the program answers, or the error's name.
    QString call(const char *interface, const char *member, const QVariantList &arguments,
                 const char *path = "/com/vexolith/barquell") {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QStringLiteral("com.vexolith.barquell"), QString::fromUtf8(path),
                                           QString::fromUtf8(interface), QString::fromUtf8(member));
        message.setArguments(arguments);
        const QDBusMessage reply = other.connection().call(message, QDBus::Block, 5000);
        return reply.type() == QDBusMessage::ReplyMessage ? QStringLiteral("ok") : reply.errorName();
    }

    PrivateBus bus;
    OtherProgram other{bus};

private:
    QTemporaryDir _runtime;
};

class LifeWithoutBusTest : public testing::Test {
protected:
    LifeWithoutBusTest() { qputenv("XDG_RUNTIME_DIR", _runtime.path().toUtf8()); }

    PrivateBus bus{PrivateBus::Beginning::Absent};

private:
    QTemporaryDir _runtime;
};

const char *const kApplication = "org.freedesktop.Application";
const char *const kScripts = "com.vexolith.barquell";

} // namespace

TEST_F(AppLifecycleTest, EachTerminationSignalEndsItInOrder) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        LifeProcess life;
        ASSERT_TRUE(life.isLaunched());
        life.signal(number);
        EXPECT_EQ(life.exitCode(), 0);
        EXPECT_EQ(life.lines, lines({"launched, copies 1", "terminate", "ended"}));
    }
}

TEST_F(AppLifecycleTest, ASignalThatWasIgnoredBeforeStaysIgnored) {
    std::signal(SIGHUP, SIG_IGN); // as nohup leaves it to what it starts
    LifeProcess life;
    std::signal(SIGHUP, SIG_DFL);
    ASSERT_TRUE(life.isLaunched());
    life.signal(SIGHUP);
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
    EXPECT_TRUE(life.says(QStringLiteral("toggle"), 2));
    EXPECT_EQ(life.lines, lines({"launched, copies 1", "toggle", "toggle"}));
    life.signal(SIGTERM);
    EXPECT_EQ(life.exitCode(), 0);
}

TEST_F(AppLifecycleTest, TerminatingDuringLaunchStillReturnsToTheCaller) {
    LifeProcess life({QStringLiteral("terminate-at-launch")});
    EXPECT_EQ(life.exitCode(), 0);
    EXPECT_EQ(life.lines, lines({"launched, copies 1", "terminate", "still here", "ended"}));
}

TEST_F(AppLifecycleTest, WhatIsPostedLastIsStillHeard) {
    SessionBus session;
    BusNotifications notifications(session);
    int heard = 0;
    const auto observation = notifications.observe(QStringLiteral("com.vexolith.barquell.show"),
                                                   [&heard](const QString &) { ++heard; });
    session.call(MessageBus::question(QStringLiteral("GetId")));
    for (int round = 1; round <= 5; ++round) {
        LifeProcess life({QStringLiteral("post-and-terminate")});
        EXPECT_EQ(life.exitCode(), 0);
        EXPECT_TRUE(waitFor([&] { return heard == round; }));
    }
}

TEST_F(AppLifecycleTest, TerminatingBeforeTheRunLoopLaunchesNothing) {
    LifeProcess life({QStringLiteral("terminate-before-run")});
    EXPECT_EQ(life.exitCode(), 0);
    EXPECT_EQ(life.lines, lines({"terminate", "ended"}));
}

TEST_F(AppLifecycleTest, TheLastClosedWindowDoesNotEndIt) {
    LifeProcess life({QStringLiteral("close-a-window")});
    ASSERT_TRUE(life.isLaunched());
    EXPECT_EQ(call(kApplication, "Activate", {QVariantMap()}), QStringLiteral("ok"));
    EXPECT_TRUE(life.says(QStringLiteral("reopen, no windows")));
    EXPECT_FALSE(life.lines.contains(QStringLiteral("terminate")));
}

TEST_F(AppLifecycleTest, AWindowThatRefusesToCloseDoesNotKeepIt) {
    LifeProcess life({QStringLiteral("keep-a-window-open")});
    ASSERT_TRUE(life.isLaunched());
    life.signal(SIGTERM);
    EXPECT_EQ(life.exitCode(), 0);
    EXPECT_EQ(life.lines, lines({"launched, copies 1", "terminate", "ended"}));
}

TEST_F(AppLifecycleTest, ActivateAndOpenAreTheReopen) {
    LifeProcess life({QStringLiteral("show-a-window")});
    ASSERT_TRUE(life.isLaunched());
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("x_TIME12")}};
    EXPECT_EQ(call(kApplication, "Activate", {data}), QStringLiteral("ok"));
    EXPECT_EQ(call(kApplication, "Open", {QStringList{QStringLiteral("file:///x")}, data}),
              QStringLiteral("ok"));
    EXPECT_TRUE(life.says(QStringLiteral("reopen, windows"), 2));
    life.signal(SIGTERM);
    EXPECT_EQ(life.exitCode(), 0);
    EXPECT_EQ(life.lines,
              lines({"launched, copies 1", "reopen, windows", "reopen, windows", "terminate", "ended"}));
}

TEST_F(AppLifecycleTest, AnActionIsAnsweredAndIgnored) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    EXPECT_EQ(call(kApplication, "ActivateAction",
                   {QStringLiteral("new"), QVariant(QVariantList()), QVariantMap()}),
              QStringLiteral("ok"));
    life.signal(SIGTERM);
    EXPECT_EQ(life.exitCode(), 0);
    EXPECT_EQ(life.lines, lines({"launched, copies 1", "terminate", "ended"}));
}

TEST_F(AppLifecycleTest, TheCallThatTheBusStartedItForIsNoReopen) {
    LifeProcess life({}, {QStringLiteral("DBUS_STARTER_BUS_TYPE=session")});
    ASSERT_TRUE(life.isLaunched());
    EXPECT_EQ(call(kApplication, "Activate", {QVariantMap()}), QStringLiteral("ok"));
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
    ASSERT_TRUE(life.says(QStringLiteral("toggle")));
    EXPECT_FALSE(life.lines.contains(QStringLiteral("reopen, no windows")));
    EXPECT_EQ(call(kApplication, "Activate", {QVariantMap()}), QStringLiteral("ok"));
    EXPECT_TRUE(life.says(QStringLiteral("reopen, no windows")));
}

TEST_F(LifeWithoutBusTest, ALauncherStartsItOverTheBusAndShowsItAgain) {
    QFile service(QStringLiteral(BARQUELL_SERVICE_FILE));
    ASSERT_TRUE(service.open(QIODevice::ReadOnly));
    bus.addService(service.readAll().replace("@BINDIR@/barquell", BARQUELL_LIFE_PROCESS));
    bus.start();
    OtherProgram launcher(bus);
    QDBusMessage activate = QDBusMessage::createMethodCall(
        QStringLiteral("com.vexolith.barquell"), QStringLiteral("/com/vexolith/barquell"),
        QString::fromLatin1(kApplication), QStringLiteral("Activate"));
    activate.setArguments({QVariantMap()});
    const QDBusMessage started = launcher.connection().call(activate);
    EXPECT_EQ(started.type(), QDBusMessage::ReplyMessage) << qPrintable(started.errorMessage());
    QStringList said;
    ASSERT_TRUE(waitFor([&] { return !(said += bus.said()).isEmpty(); }));
    EXPECT_EQ(said, lines({"launched, copies 1"}));
    EXPECT_EQ(launcher.connection().call(activate).type(), QDBusMessage::ReplyMessage);
    ASSERT_TRUE(waitFor([&] { return (said += bus.said()).size() > 1; }));
    EXPECT_EQ(said.constLast(), QStringLiteral("reopen, no windows"));
    RunningProgram program;
    ASSERT_TRUE(program.processId());
    ::kill(static_cast<pid_t>(*program.processId()), SIGTERM);
    EXPECT_TRUE(waitFor([&] { return (said += bus.said()).contains(QStringLiteral("ended")); }));
}

TEST_F(AppLifecycleTest, ScriptsAreCarriedToTheirHandlers) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {true}), QStringLiteral("ok"));
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {false}), QStringLiteral("ok"));
    EXPECT_TRUE(life.says(QStringLiteral("active 0")));
    EXPECT_EQ(life.lines, lines({"launched, copies 1", "toggle", "active 1", "active 0"}));
}

TEST_F(AppLifecycleTest, CallsOfOtherSignaturesAndPlacesAreRefusedAndHarmless) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    const QString unknownMethod = QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {QStringLiteral("true")}), unknownMethod);
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {1}), unknownMethod);
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {}), unknownMethod);
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {QVariantMap()}), unknownMethod);
    EXPECT_EQ(call(kScripts, "SetTouchBarActive", {true, true}), unknownMethod);
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {true}), unknownMethod);
    EXPECT_EQ(call(kScripts, "Status", {true}), unknownMethod);
    EXPECT_EQ(call(kScripts, "deleteLater", {}), unknownMethod);
    EXPECT_EQ(call(kScripts, "toggleTouchBar", {}), unknownMethod);
    EXPECT_EQ(call(kApplication, "Activate", {}), unknownMethod);
    EXPECT_EQ(call(kApplication, "Activate", {QStringLiteral("x")}), unknownMethod);
    EXPECT_EQ(call("org.freedesktop.Applications", "Activate", {QVariantMap()}),
              QStringLiteral("org.freedesktop.DBus.Error.UnknownInterface"));
    EXPECT_NE(call(kScripts, "ToggleTouchBar", {}, "/com/vexolith"), QStringLiteral("ok"));
    EXPECT_EQ(life.lines, lines({"launched, copies 1"}));
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
}

TEST_F(AppLifecycleTest, CopiesAreCountedExactly) {
    LifeProcess first;
    ASSERT_TRUE(first.isLaunched(1));
    LifeProcess second;
    ASSERT_TRUE(second.isLaunched(2));
    LifeProcess third;
    ASSERT_TRUE(third.isLaunched(3));
    first.signal(SIGKILL);
    first.exitCode();
    LifeProcess fourth;
    EXPECT_TRUE(fourth.isLaunched(3));
}

TEST_F(AppLifecycleTest, TheNextCopyInTheQueueAnswersAfterTheFirst) {
    LifeProcess first;
    ASSERT_TRUE(first.isLaunched(1));
    LifeProcess second;
    ASSERT_TRUE(second.isLaunched(2));
    RunningProgram program;
    EXPECT_EQ(program.processId(), first.processId());
    first.signal(SIGTERM);
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_EQ(program.processId(), second.processId());
    EXPECT_EQ(call(kScripts, "ToggleTouchBar", {}), QStringLiteral("ok"));
    EXPECT_TRUE(second.says(QStringLiteral("toggle")));
}

TEST_F(AppLifecycleTest, OfOthersTheHoldersOfANameAreCounted) {
    const SessionBus session;
    RunningCopies copies(session);
    EXPECT_EQ(copies.count(QStringLiteral("org.example.Editor")), 0);
    EXPECT_EQ(copies.count(QStringLiteral("com.vexolith.barquell")), 0);
    ASSERT_TRUE(other.connection().registerService(QStringLiteral("org.example.Editor")));
    EXPECT_EQ(copies.count(QStringLiteral("org.example.Editor")), 1);
    for (const char *name : {"", "editor", "not a name", ":1.1", "org.example.\xc3\xa9"}) {
        EXPECT_EQ(copies.count(QString::fromUtf8(name)), 0) << name;
    }
}

TEST_F(AppLifecycleTest, ABusThatRestartsFindsTheProgramAgain) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    bus.kill();
    ASSERT_TRUE(life.says(QStringLiteral("log: The session bus went away")));
    bus.start();
    ASSERT_TRUE(life.says(QStringLiteral("log: The session bus is there")));
    RunningProgram program;
    EXPECT_TRUE(waitFor([&] { return program.show() == Outcome::Done; }));
    LifeProcess second;
    EXPECT_TRUE(second.isLaunched(2));
    life.signal(SIGTERM);
    EXPECT_EQ(life.exitCode(), 0);
}

TEST_F(LifeWithoutBusTest, AnotherCopyIsStillNoticed) {
    LifeProcess first;
    ASSERT_TRUE(first.isLaunched(1));
    LifeProcess second;
    ASSERT_TRUE(second.isLaunched(2));
    second.signal(SIGTERM);
    EXPECT_EQ(second.exitCode(), 0);
    first.signal(SIGTERM);
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_EQ(first.lines, lines({"log: No session bus; other programs can not be heard",
                                  "launched, copies 1", "terminate", "ended"}));
    LifeProcess third;
    EXPECT_TRUE(third.isLaunched(1));
}

} // namespace barquell::test
