#include "FakeServer.h"

#include "platform/linux/client/SocketTrust.h"
#include "support/Place.h"

#include <gtest/gtest.h>

namespace barquell::test {

namespace {

class SocketTrustTest : public testing::Test {
protected:
    SocketTrustTest() {
        place();
        observation = place().platform.notifications.observe(QStringLiteral("com.apple.accessibility.api"),
                                                             [this](const QString &) { ++told; });
    }

    bool isTold() {
        return waitFor([this] {
            place().loop.runPending();
            return told > 0;
        });
    }

    FakeServer server;
    SocketTrust trust{server.path(), place().platform.notifications};
    std::unique_ptr<DistributedNotifications::Observation> observation;
    int told = 0;
};

} // namespace

TEST_F(SocketTrustTest, WhoMaySpeakToTheServerIsTrusted) {
    EXPECT_TRUE(trust.isProcessTrusted());
    QFile::remove(server.path());
    EXPECT_FALSE(trust.isProcessTrusted());
}

TEST_F(SocketTrustTest, ASocketThatGoesOrComesIsTold) {
    QFile::remove(server.path());
    EXPECT_TRUE(isTold());
    told = 0;
    server.listen();
    EXPECT_TRUE(isTold());
    EXPECT_TRUE(trust.isProcessTrusted());
}

TEST(SocketTrustWithoutServerTest, WithoutAServerNobodyIsTrusted) {
    const SocketTrust trust(QStringLiteral("/nowhere/tap.sock"), place().platform.notifications);
    EXPECT_FALSE(trust.isProcessTrusted());
}

} // namespace barquell::test
