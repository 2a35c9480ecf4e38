#pragma once

#include "foundation/UserDefaults.h"
#include "process/AppHelpers.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

/// The process helpers on a scripted place and a virtual clock; each test runs in a process of its own.
class AppHelpersFixture : public testing::Test {
protected:
    AppHelpersFixture() { here.loop.runPending(); }

    /// The class sets itself up on its first use, and the process is in the background then.
    void begin() {
        EXPECT_TRUE(AppHelpers::isBackground());
        here.loop.advanceBy(std::chrono::seconds(1));
        forget();
    }

    void forget() {
        life.journal.clear();
        loginItem.journal.clear();
        log.lines.clear();
    }

    static void set(const char *key, const QVariant &value) {
        UserDefaults::standard().setObject(value, QString::fromLatin1(key));
    }

    static QVariant stored(const char *key) {
        return UserDefaults::standard().persistentDomain().value(QString::fromLatin1(key));
    }

    Place &here = place();
    ScriptedAppLifecycle &life = here.platform.lifecycle;
    ScriptedLoginItem &loginItem = here.platform.loginItem;
    ScriptedWorkspace &workspace = here.platform.workspace;
    LogCapture log;
};

} // namespace barquell::test
