// What the desktop knows of applications, and how ours takes part in it.

#include "contract/ContractPlace.h"
#include "platform/AppLifecycle.h"
#include "platform/Applications.h"
#include "platform/Diagnostics.h"
#include "platform/LoginItem.h"
#include "platform/Workspace.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QDir>
#include <QIcon>
#include <QUrl>

namespace barquell::test {
namespace {

const QString kNobody = QStringLiteral("com.vexolith.nobody");
const QString kNowhere = QStringLiteral("/nowhere/at.all");

class SessionContract : public Contract {
protected:
    LogCapture lines;
};

TEST_P(SessionContract, AnApplicationThatIsNotThereIsEmpty) {
    const Applications &applications = *pieces.applications;
    EXPECT_TRUE(applications.pathOfApplication(kNobody).isEmpty());
    EXPECT_TRUE(applications.pathOfApplication(QString()).isEmpty());
    for (const QString &path : {QString(), kNowhere}) {
        EXPECT_TRUE(applications.bundleIdentifier(path).isEmpty());
        EXPECT_TRUE(applications.ownName(path).isEmpty());
    }
    EXPECT_TRUE(applications.icon(QString()).isNull());
    EXPECT_TRUE(lines.lines.isEmpty());
}

TEST_P(SessionContract, ApplicationsLieInAFolderAndHaveAnEnding) {
    EXPECT_TRUE(QDir::isAbsolutePath(pieces.applications->folder()));
    EXPECT_FALSE(pieces.applications->fileType().isEmpty());
    EXPECT_FALSE(pieces.applications->fileType().contains(QLatin1Char('.')));
}

TEST_P(SessionContract, NobodyRunsWhoIsNotThere) {
    EXPECT_EQ(pieces.workspace->runningCopies(kNobody), 0);
}

TEST_P(SessionContract, WhatIsInFrontIsAProcessWhereItIsKnown) {
    const auto front = pieces.workspace->frontmostApplication();
    if (!pieces.workspace->canKnowFrontmostApplication()) {
        EXPECT_FALSE(front.has_value());
    } else if (front) {
        EXPECT_GT(front->processId, 0);
    }
}

TEST_P(SessionContract, AnObservationOfWhatIsInFrontMayEndAtOnce) {
    bool told = false;
    auto observation = pieces.workspace->observeActivation([&told] { told = true; });
    EXPECT_NE(observation, nullptr);
    observation.reset();
    runFor(std::chrono::milliseconds(20));
    EXPECT_FALSE(told);
}

TEST_P(SessionContract, ALoginItemThatNobodyMadeIsNotFound) {
    EXPECT_NE(pieces.loginItem->state(kNobody).kind, LoginItemState::Kind::Found);
    EXPECT_FALSE(pieces.loginItem->state(kNobody).value.has_value());
}

TEST_P(SessionContract, ThePolicyIsWhatWasSet) {
    AppLifecycle &lifecycle = *pieces.appLifecycle;
    for (const auto policy :
         {ActivationPolicy::Accessory, ActivationPolicy::Regular, ActivationPolicy::Accessory}) {
        lifecycle.setActivationPolicy(policy);
        EXPECT_EQ(lifecycle.activationPolicy(), policy);
    }
    lifecycle.bringFirstProcessToFront();
}

TEST_P(SessionContract, TheDelegateIsWhoWasSet) {
    EXPECT_EQ(pieces.appLifecycle->delegate(), nullptr);
    pieces.appLifecycle->setScriptCommands({});
    pieces.appLifecycle->setDelegate(nullptr);
    EXPECT_EQ(pieces.appLifecycle->delegate(), nullptr);
}

TEST_P(SessionContract, TheSettingsFileIsNoneOrHasAFullPath) {
    const QString file = pieces.diagnostics->settingsFile();
    EXPECT_TRUE(file.isEmpty() || QDir::isAbsolutePath(file));
}

ON_EVERY_PLACE(SessionContract);

} // namespace
} // namespace barquell::test
