// What goes from process to process by name, whatever carries it.

#include "platform/DistributedNotifications.h"
#include "contract/ContractPlace.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QStringList>

#include <stdexcept>

namespace barquell::test {
namespace {

const QString kName = QStringLiteral("com.vexolith.barquell.contract");

class DistributedNotificationsContract : public Contract {
protected:
    std::unique_ptr<Observation> count(const QString &name = kName) {
        return notifications.observe(name, [this](const QString &heard) { received.append(heard); });
    }

    /// Posts a name that nothing else posts, and waits until it comes: what was posted before has come by
    /// then.
    void settle() {
        const QString last = QStringLiteral("com.vexolith.barquell.contractLast");
        bool there = false;
        const auto observation = notifications.observe(last, [&there](const QString &) { there = true; });
        notifications.post(last);
        EXPECT_TRUE(waitFor([&there] { return there; }));
    }

    LogCapture lines;
    DistributedNotifications &notifications = *pieces.distributedNotifications;
    QStringList received;
};

TEST_P(DistributedNotificationsContract, TheOwnProcessHearsItsPostOnceAndLater) {
    const auto observation = count();
    notifications.post(kName);
    EXPECT_TRUE(received.isEmpty());
    settle();
    EXPECT_EQ(received, QStringList(kName));
}

TEST_P(DistributedNotificationsContract, ANameIsHeardByItsListenersAlone) {
    const auto observation = count();
    const auto another = count(kName + QStringLiteral("Another"));
    notifications.post(kName + QStringLiteral("Another"));
    settle();
    EXPECT_EQ(received, QStringList(kName + QStringLiteral("Another")));
}

TEST_P(DistributedNotificationsContract, EveryListenerHearsEachPost) {
    const auto one = count();
    const auto two = count();
    notifications.post(kName);
    settle();
    EXPECT_EQ(received.size(), 2);
}

TEST_P(DistributedNotificationsContract, APostMadeBeforeObservingIsNotSeen) {
    notifications.post(kName);
    const auto observation = count();
    settle();
    EXPECT_TRUE(received.isEmpty());
}

TEST_P(DistributedNotificationsContract, AnEndedObservationHearsNothingMore) {
    auto observation = count();
    notifications.post(kName);
    observation.reset();
    settle();
    EXPECT_TRUE(received.isEmpty());
}

TEST_P(DistributedNotificationsContract, OneOfTwoObservationsMayEndAlone) {
    auto one = count();
    const auto two = count();
    one.reset();
    notifications.post(kName);
    settle();
    EXPECT_EQ(received.size(), 1);
}

TEST_P(DistributedNotificationsContract, AnObservationMayEndFromItsOwnHandler) {
    std::unique_ptr<Observation> observation;
    observation = notifications.observe(kName, [&](const QString &name) {
        observation.reset();
        received.append(name);
    });
    notifications.post(kName);
    notifications.post(kName);
    settle();
    EXPECT_EQ(received.size(), 1);
}

TEST_P(DistributedNotificationsContract, AHandlerThatThrowsDisturbsNobodyElse) {
    const auto throwing =
        notifications.observe(kName, [](const QString &) { throw std::runtime_error("no more"); });
    const auto observation = count();
    notifications.post(kName);
    settle();
    EXPECT_EQ(received.size(), 1);
    EXPECT_EQ(lines.lines.size(), 1);
}

ON_EVERY_PLACE(DistributedNotificationsContract);

} // namespace
} // namespace barquell::test
