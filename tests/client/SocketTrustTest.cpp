#include "FakeServer.h"

#include "platform/linux/client/SocketTrust.h"
#include "support/Place.h"

#include <QDir>
#include <QTemporaryDir>

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
    std::unique_ptr<Observation> observation;
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

TEST_F(SocketTrustTest, AServerWhoseFolderComesLaterIsNoticed) {
    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("run/barquell"));
    const QString path = folder + QStringLiteral("/tap.sock");
    const SocketTrust later(path, place().platform.notifications);
    told = 0;
    QDir().mkpath(folder);
    QFile socket(path);
    ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
    EXPECT_TRUE(isTold());
    EXPECT_TRUE(later.isProcessTrusted());
    told = 0;
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_TRUE(isTold());
    told = 0;
    QDir().mkpath(folder);
    QFile again(path);
    ASSERT_TRUE(again.open(QIODevice::WriteOnly));
    EXPECT_TRUE(isTold());
}

TEST(SocketTrustWithoutServerTest, WithoutAServerNobodyIsTrusted) {
    const SocketTrust trust(QStringLiteral("/nowhere/tap.sock"), place().platform.notifications);
    EXPECT_FALSE(trust.isProcessTrusted());
}

} // namespace barquell::test
