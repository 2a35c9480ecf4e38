#include "app/linux/Checks.h"
#include "app/linux/Findings.h"
#include "app/linux/ServiceState.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>

namespace barquell::test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// All as it should be.
Findings sound() {
    Findings findings;
    findings.processId = 77;
    findings.enabled = true;
    findings.hasDisplay = true;
    findings.grant.state = grant::State::Held;
    findings.service = true;
    findings.server = protocol::ServerMessage{.type = protocol::ServerMessageType::Welcome,
                                              .barsKnown = 1,
                                              .barsGrabbed = 1,
                                              .holder = 77,
                                              .inFront = 1};
    return findings;
}

Check find(const Findings &findings, const char *what) {
    for (const Check &check : checkBlocking(findings)) {
        if (check.what.startsWith(QLatin1String(what))) {
            return check;
        }
    }
    ADD_FAILURE() << "no check: " << what;
    return {};
}

bool isChecked(const Findings &findings, const char *what) {
    const QList<Check> checks = checkBlocking(findings);
    return std::any_of(checks.begin(), checks.end(),
                       [what](const Check &check) { return check.what.startsWith(QLatin1String(what)); });
}

/// The complaint, and the command that mends it.
void expectMissing(const Findings &findings, const char *what, const char *mend) {
    const Check check = find(findings, what);
    EXPECT_FALSE(check.good) << what;
    EXPECT_THAT(check.mend.toStdString(), HasSubstr(mend));
}

constexpr const char *kGranted = "this user may filter the Touch Bar";

TEST(BlockingChecksTest, NothingIsMissingWhereAllIsAsItShouldBe) {
    for (const Check &check : checkBlocking(sound())) {
        EXPECT_TRUE(check.good || check.what.contains(QLatin1String("settings"))) << check.what.toStdString();
    }
}

TEST(BlockingChecksTest, AMissingGrantIsGivenByItsCommand) {
    Findings findings = sound();
    findings.grant.state = grant::State::None;
    findings.server = ProbeFailure::NotGranted;
    expectMissing(findings, kGranted, "sudo barquell-tapd --grant $(id -un)");
    EXPECT_THAT(find(findings, kGranted).mend.toStdString(), HasSubstr("barquell show"));
    findings.hasDisplay = false;
    EXPECT_THAT(find(findings, kGranted).mend.toStdString(), Not(HasSubstr("barquell show")));
}

TEST(BlockingChecksTest, AServerThatWasNotAskedIsOnlyThere) {
    Findings findings = sound();
    findings.grant.state = grant::State::None;
    findings.server = ProbeFailure::NotGranted;
    EXPECT_TRUE(find(findings, "the tap server is there").good);
    EXPECT_FALSE(isChecked(findings, "the tap server answers"));
    findings.grant.state = grant::State::Held; // then it was asked
    EXPECT_TRUE(find(findings, "the tap server answers this user").good);
}

TEST(BlockingChecksTest, AGrantThatDoesNotHoldSaysWhy) {
    Findings findings = sound();
    findings.grant = {.state = grant::State::Invalid, .problem = "it is not root's"};
    expectMissing(findings, "this user may filter the Touch Bar (the grant does not hold: it is not root's)",
                  "--grant");
}

TEST(BlockingChecksTest, AGrantThatTheServerDoesNotKnowIsNone) {
    Findings findings = sound();
    findings.server = ProbeFailure::NotGranted;
    expectMissing(findings, kGranted, "--grant");
}

TEST(BlockingChecksTest, AnotherUserInFrontIsSaid) {
    Findings findings = sound();
    std::get<protocol::ServerMessage>(findings.server).inFront = 0;
    expectMissing(findings, "this user is the one in front", "loginctl activate");
    EXPECT_FALSE(isChecked(findings, "the Touch Bar is held")) << "it is held for somebody else";
    EXPECT_TRUE(isChecked(sound(), "the Touch Bar is held"));
}

TEST(BlockingChecksTest, AnAbsentServerIsStartedByTheServiceManagerWhereThatKnowsIt) {
    Findings findings = sound();
    findings.server = ProbeFailure::Absent;
    expectMissing(findings, "the tap server is there", "systemctl enable --now barquell-tapd.socket");
    findings.service = false;
    expectMissing(findings, "the tap server is there", "sudo barquell-tapd --group");
    expectMissing(findings, "the tap server is installed as a service", "sudo apt install ./build/packages/");
}

TEST(BlockingChecksTest, ASilentOrForbiddenServerIsStartedAnew) {
    Findings findings = sound();
    for (const auto &[failure, what] : {std::pair(ProbeFailure::Silent, "the tap server answers"),
                                        std::pair(ProbeFailure::Refused, "the tap server answers"),
                                        std::pair(ProbeFailure::Forbidden, "this user may speak")}) {
        findings.server = failure;
        findings.service = true;
        expectMissing(findings, what, "systemctl restart");
        findings.service = std::nullopt;
        expectMissing(findings, what, "sudo barquell-tapd --group");
    }
}

TEST(BlockingChecksTest, WithoutAServiceManagerNobodyAsksForAService) {
    Findings findings = sound();
    findings.service = std::nullopt;
    for (const Check &check : checkBlocking(findings)) {
        EXPECT_FALSE(check.what.contains(QLatin1String("service"))) << check.what.toStdString();
    }
}

TEST(ServiceStateTest, UnitsAreLookedForWhereSystemdReadsThem) {
    const QTemporaryDir folder;
    const QDir root(folder.path());
    EXPECT_EQ(isServiceInstalled(folder.path()), std::nullopt);
    root.mkpath(QStringLiteral("run/systemd/system"));
    EXPECT_EQ(isServiceInstalled(folder.path()), false);
    const auto install = [&root](const char *in, const char *unit) {
        root.mkpath(QLatin1String(in));
        QFile file(root.filePath(QLatin1String(in) + QLatin1Char('/') + QLatin1String(unit)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    };
    install("etc/systemd/system", "barquell-tapd.socket");
    EXPECT_EQ(isServiceInstalled(folder.path()), false); // a socket without its service
    install("usr/lib/systemd/system", "barquell-tapd.service");
    EXPECT_EQ(isServiceInstalled(folder.path()), true);
}

} // namespace
} // namespace barquell::test
