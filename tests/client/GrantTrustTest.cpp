#include "platform/linux/client/GrantTrust.h"

#include "support/Place.h"
#include "support/Wait.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace barquell::test {

namespace {

class GrantTrustTest : public testing::Test {
protected:
    GrantTrustTest() : grants(path().toStdString(), ::geteuid()) {
        place();
        observation = place().platform.notifications.observe(QStringLiteral("com.apple.accessibility.api"),
                                                             [this](const QString &) { ++told; });
    }

    QString path() const { return home.filePath(QStringLiteral("lib/barquell/grants")); }
    GrantTrust trust() { return {grants, place().platform.notifications}; }

    /// Since this was last asked.
    bool isTold() {
        const bool heard = waitFor([this] {
            place().loop.runPending();
            return told > 0;
        });
        told = 0;
        return heard;
    }

    QTemporaryDir home;
    grant::GrantFolder grants;
    std::unique_ptr<Observation> observation;
    int told = 0;
};

} // namespace

TEST_F(GrantTrustTest, WhoHasAGrantIsTrusted) {
    const GrantTrust trust = this->trust();
    EXPECT_FALSE(trust.isProcessTrusted());
    EXPECT_EQ(grants.give(::getuid()), "");
    EXPECT_TRUE(trust.isProcessTrusted());
    EXPECT_EQ(grants.withdraw(::getuid()), "");
    EXPECT_FALSE(trust.isProcessTrusted());
}

TEST_F(GrantTrustTest, AGrantThatComesOrGoesIsTold) {
    ASSERT_EQ(grants.make(), "");
    const GrantTrust trust = this->trust();
    EXPECT_EQ(grants.give(::getuid()), "");
    EXPECT_TRUE(isTold());
    EXPECT_EQ(grants.withdraw(::getuid()), "");
    EXPECT_TRUE(isTold());
    EXPECT_FALSE(trust.isProcessTrusted());
}

TEST_F(GrantTrustTest, AFolderThatComesLaterOrIsMadeAnewIsNoticed) {
    const GrantTrust trust = this->trust();
    EXPECT_EQ(grants.give(::getuid()), "");
    EXPECT_TRUE(isTold());
    EXPECT_EQ(grants.withdraw(::getuid()), "");
    EXPECT_TRUE(isTold()) << "the folder itself is watched by now";
    EXPECT_EQ(grants.give(::getuid()), "");
    EXPECT_TRUE(isTold());
    ASSERT_TRUE(QDir(home.filePath(QStringLiteral("lib"))).removeRecursively());
    EXPECT_TRUE(isTold());
    EXPECT_FALSE(trust.isProcessTrusted());
    EXPECT_EQ(grants.give(::getuid()), "");
    EXPECT_TRUE(isTold());
    EXPECT_TRUE(trust.isProcessTrusted());
}

TEST_F(GrantTrustTest, WhatChangesNothingIsNotTold) {
    ASSERT_EQ(grants.give(::getuid()), "");
    const GrantTrust trust = this->trust();
    QFile other(path() + QStringLiteral("/4123456789"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    EXPECT_EQ(grants.give(::getuid()), "") << "again";
    runFor(std::chrono::milliseconds(200));
    place().loop.runPending();
    EXPECT_EQ(told, 0);
    EXPECT_TRUE(trust.isProcessTrusted());
}

TEST_F(GrantTrustTest, AGrantOfNonsenseIsNone) {
    ASSERT_EQ(grants.give(::getuid()), "");
    const GrantTrust trust = this->trust();
    QFile file(path() + QStringLiteral("/%1").arg(::getuid()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(trust.isProcessTrusted());
    EXPECT_EQ(trust.reading().state, grant::State::Invalid);
}

TEST_F(GrantTrustTest, TheEnvironmentMayMoveTheGrants) {
    EXPECT_EQ(thisMachinesGrants().path(), grant::kFolder);
    qputenv("BARQUELL_GRANTS", path().toLocal8Bit());
    EXPECT_EQ(grants.give(::getuid()), "");
    const GrantTrust trust(thisMachinesGrants(), place().platform.notifications);
    EXPECT_TRUE(trust.isProcessTrusted());
}

} // namespace barquell::test
