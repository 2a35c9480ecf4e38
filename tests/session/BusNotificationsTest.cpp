#include "PrivateBus.h"

#include "platform/linux/session/BusNotifications.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

namespace barquell::test {

namespace {

const QString kToggle = QStringLiteral("com.vexolith.barquell.toggle");
const QString kInterface = QStringLiteral("com.vexolith.barquell");
const QString kRoot = QStringLiteral("/");

class BusNotificationsTest : public testing::Test {
protected:
    std::unique_ptr<Observation> count(const QString &name) {
        return notifications.observe(name, [this](const QString &heard) { received.append(heard); });
    }

    /// Posts a name that nothing else posts, and waits until it comes: what was sent before has come by then.
    void settle() {
        const QString last = QStringLiteral("com.vexolith.barquell.last");
        bool there = false;
        const auto observation = notifications.observe(last, [&there](const QString &) { there = true; });
        session.call(MessageBus::question(QStringLiteral("GetId"))); // the bus knows what is observed
        other.emitSignal(kRoot, kInterface, QStringLiteral("last"));
        EXPECT_TRUE(waitFor([&there] { return there; }));
    }

    LogCapture lines;
    PrivateBus bus;
    SessionBus session;
    BusNotifications notifications{session};
    OtherProgram other{bus};
    QStringList received;
};

class NotificationsWithoutBusTest : public testing::Test {
protected:
    LogCapture lines;
    PrivateBus bus{PrivateBus::Beginning::Absent};
    SessionBus session;
    BusNotifications notifications{session};
};

} // namespace

TEST_F(BusNotificationsTest, ASignalOfAnyProgramIsTheNotificationOfItsName) {
    const auto observation = count(kToggle);
    const auto another = count(QStringLiteral("com.apple.shieldWindowRaised"));
    settle();
    other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"));
    other.emitSignal(kRoot, QStringLiteral("com.apple"), QStringLiteral("shieldWindowRaised"));
    settle();
    EXPECT_EQ(received, (QStringList{kToggle, QStringLiteral("com.apple.shieldWindowRaised")}));
}

TEST_F(BusNotificationsTest, APostIsASignalThatOtherProgramsHear) {
    SessionBus second;
    BusNotifications elsewhere(second);
    int heard = 0;
    const auto observation = elsewhere.observe(kToggle, [&heard](const QString &) { ++heard; });
    second.call(MessageBus::question(QStringLiteral("GetId")));
    notifications.post(kToggle);
    EXPECT_TRUE(waitFor([&heard] { return heard == 1; }));
}

TEST_F(BusNotificationsTest, AnObservationOutlivesItsCenter) {
    auto center = std::make_unique<BusNotifications>(session);
    int heard = 0;
    auto observation = center->observe(kToggle, [&heard](const QString &) { ++heard; });
    settle();
    center.reset();
    other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"));
    settle();
    EXPECT_EQ(heard, 0);
    observation.reset();
    other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"));
    settle();
    EXPECT_EQ(heard, 0);
}

TEST_F(BusNotificationsTest, WhatIsNearlyOursIsNot) {
    const auto observation = count(kToggle);
    settle();
    const QString member = QStringLiteral("toggle");
    other.emitSignal(QStringLiteral("/com/vexolith/barquell"), kInterface, member);
    other.emitSignal(kRoot, QStringLiteral("com.vexolith.barquel"), member);
    other.emitSignal(kRoot, QStringLiteral("com.vexolith.barquell.x"), member);
    other.emitSignal(kRoot, QStringLiteral("com.vexolith"), QStringLiteral("barquell"));
    other.emitSignal(kRoot, kInterface, QStringLiteral("Toggle"));
    other.emitSignal(kRoot, kInterface, QStringLiteral("toggle_"));
    settle();
    EXPECT_TRUE(received.isEmpty());
    EXPECT_TRUE(lines.lines.isEmpty());
}

TEST_F(BusNotificationsTest, SignalsOfOtherSignaturesAreNot) {
    const auto observation = count(kToggle);
    settle();
    for (const QVariant &argument :
         {QVariant(QStringLiteral("now")), QVariant(true), QVariant(QStringList{QStringLiteral("a")}),
          QVariant(QByteArray(100000, 'x')), QVariant(QVariantMap{{QStringLiteral("k"), 1}})}) {
        other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"), {argument});
    }
    settle();
    EXPECT_TRUE(received.isEmpty());
}

TEST_F(BusNotificationsTest, ABurstIsHeardWholeAndHoldsNothingElseUp) {
    const auto observation = count(kToggle);
    settle();
    constexpr int kBurst = 10000;
    for (int each = 0; each < kBurst; ++each) {
        other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"));
    }
    // A timer of the main thread gets its turns in between.
    int turns = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, &beat, [&turns] { ++turns; });
    beat.start(0);
    EXPECT_TRUE(waitFor([this] { return received.size() >= kBurst; }));
    EXPECT_EQ(received.size(), kBurst);
    EXPECT_GT(turns, kBurst / 2);
    EXPECT_TRUE(lines.lines.isEmpty());
}

TEST_F(BusNotificationsTest, AFloodWithoutEndIsBoundedAndSaidOnce) {
    const auto observation = count(kToggle);
    bus.kill();
    ASSERT_TRUE(waitFor([this] { return !session.isConnected(); }));
    lines.lines.clear();
    for (int each = 0; each < 70000; ++each) {
        notifications.post(kToggle);
    }
    EXPECT_EQ(lines.lines.size(), 1);
}

TEST_F(BusNotificationsTest, ABusThatRestartsIsFoundAgain) {
    const auto observation = count(kToggle);
    bus.kill();
    ASSERT_TRUE(waitFor([this] { return lines.lines.size() == 1; }));
    EXPECT_FALSE(session.isConnected());
    notifications.post(kToggle); // meanwhile the own process is all there is
    ASSERT_TRUE(waitFor([this] { return received.size() == 1; }));
    bus.start();
    ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    EXPECT_EQ(lines.lines, (QStringList{QStringLiteral("The session bus went away"),
                                        QStringLiteral("The session bus is there")}));
    SessionBus second;
    BusNotifications elsewhere(second);
    elsewhere.post(kToggle);
    EXPECT_TRUE(waitFor([this] { return received.size() == 2; }));
}

TEST_F(BusNotificationsTest, ABusThatRestartsManyTimesLeavesNothingBehind) {
    const auto observation = count(kToggle);
    for (int round = 0; round < 5; ++round) {
        bus.kill();
        ASSERT_TRUE(waitFor([this] { return !session.isConnected(); }));
        bus.start();
        ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    }
    notifications.post(kToggle);
    ASSERT_TRUE(waitFor([this] { return !received.isEmpty(); }));
    runFor(std::chrono::milliseconds(100));
    EXPECT_EQ(received.size(), 1);
}

TEST_F(NotificationsWithoutBusTest, NotificationsStayInTheProcess) {
    int heard = 0;
    const auto observation = notifications.observe(kToggle, [&heard](const QString &) { ++heard; });
    notifications.post(kToggle);
    EXPECT_TRUE(waitFor([&heard] { return heard == 1; }));
    EXPECT_EQ(lines.lines, QStringList{QStringLiteral("No session bus; other programs can not be heard")});
}

TEST_F(NotificationsWithoutBusTest, ABusThatComesLaterIsUsed) {
    int heard = 0;
    const auto observation = notifications.observe(kToggle, [&heard](const QString &) { ++heard; });
    bus.start();
    ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    OtherProgram other(bus);
    notifications.post(kToggle);
    EXPECT_TRUE(waitFor([&heard] { return heard == 1; }));
    other.emitSignal(kRoot, kInterface, QStringLiteral("toggle"));
    EXPECT_TRUE(waitFor([&heard] { return heard == 2; }));
}

TEST_F(NotificationsWithoutBusTest, ANameThatNoSignalCanHaveStaysInTheProcess) {
    bus.start();
    ASSERT_TRUE(waitFor([this] { return session.isConnected(); }));
    for (const char *name : {"com.vexolith.touch-bar", "one", "one.two", "com..two", "", "com.vexolith.1",
                             "com.vexolith.two\n", "com.vexolith.t\u00f6ggle"}) {
        int heard = 0;
        const auto observation =
            notifications.observe(QString::fromUtf8(name), [&heard](const QString &) { ++heard; });
        notifications.post(QString::fromUtf8(name));
        EXPECT_TRUE(waitFor([&heard] { return heard == 1; })) << name;
    }
    EXPECT_TRUE(session.isConnected());
}

TEST(MessageBusTest, ASessionWithoutAnAddressHasNoBus) {
    const LogCapture lines;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    const SessionBus session;
    EXPECT_FALSE(session.isConnected());
    EXPECT_EQ(lines.lines.size(), 1);
}

TEST(MessageBusTest, AnAddressOfNonsenseIsNoBus) {
    const LogCapture lines;
    for (const char *address :
         {"unix:", "unix:path=", "unix:path=/nowhere/bus", "tcp:host=", "\xff;;=,%zz"}) {
        const MessageBus bus(QStringLiteral("bus"), QString::fromLatin1(address));
        EXPECT_FALSE(bus.isConnected()) << address;
    }
    EXPECT_EQ(lines.lines.size(), 5);
}

} // namespace barquell::test
