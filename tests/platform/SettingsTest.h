#pragma once

#include "platform/SettingsFolder.h"
#include "platform/SettingsStore.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell::test {

/// What the tests of a settings file stand on: a folder for it, and an ear for the log.
class SettingsTest : public testing::Test {
protected:
    using Outcome = SettingsStore::Outcome;

    /// One line was logged, with the reason and the name under which the file is kept.
    void expectSetAside(const QString &reason) const {
        ASSERT_EQ(folder.setAside().size(), 1);
        ASSERT_EQ(logged.lines.size(), 1);
        EXPECT_TRUE(logged.lines.first().contains(reason)) << logged.lines.first().toStdString();
        EXPECT_TRUE(logged.lines.first().contains(folder.setAside().first()));
    }

    const QString kKey = QStringLiteral("key");

    LogCapture logged;
    SettingsFolder folder;
};

} // namespace barquell::test
