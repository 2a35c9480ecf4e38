#include "app/replay/ReplayArguments.h"

#include <gtest/gtest.h>

namespace barquell::test {

using replay::assign;
using replay::ReplaySettings;

namespace {

QVariant assigned(const char *value) {
    ReplaySettings settings;
    EXPECT_EQ(assign(settings, QStringLiteral("Key=") + QString::fromLatin1(value)), QString());
    return settings.stored.value(QStringLiteral("Key"));
}

QString complaintOn(const char *assignment) {
    ReplaySettings settings;
    return assign(settings, QString::fromLatin1(assignment));
}

} // namespace

TEST(ReplayArgumentsTest, ValuesTakeTheTypeThatTheyLookLike) {
    EXPECT_EQ(assigned("true"), QVariant(true));
    EXPECT_EQ(assigned("NO").typeId(), QMetaType::Bool);
    EXPECT_EQ(assigned("2"), QVariant(2LL));
    EXPECT_EQ(assigned("2").typeId(), QMetaType::LongLong);
    EXPECT_EQ(assigned("-7").toLongLong(), -7);
    EXPECT_EQ(assigned("com.example.editor").typeId(), QMetaType::QString);
    EXPECT_EQ(assigned("").typeId(), QMetaType::QString);
    EXPECT_EQ(assigned("a=b").toString(), QStringLiteral("a=b"));
    EXPECT_EQ(assigned("[\"com.example.editor\"]").toList(),
              QVariantList{QStringLiteral("com.example.editor")});
}

TEST(ReplayArgumentsTest, PseudoKeysAreNoSettings) {
    ReplaySettings settings;
    EXPECT_EQ(assign(settings, QStringLiteral("trusted=false")), QString());
    EXPECT_EQ(assign(settings, QStringLiteral("pauseFlags=3")), QString());
    EXPECT_FALSE(settings.trusted);
    EXPECT_EQ(settings.pauseFlags, 3U);
    EXPECT_TRUE(settings.stored.isEmpty());
}

TEST(ReplayArgumentsTest, WhatIsNoAssignmentIsRefused) {
    for (const char *assignment :
         {"Enabled", "=true", "", "trusted=maybe", "trusted=1", "pauseFlags=-1", "pauseFlags=4294967296",
          "pauseFlags=true", "pauseFlags=some", "Key=[null]"}) {
        EXPECT_FALSE(complaintOn(assignment).isEmpty()) << assignment;
    }
}

} // namespace barquell::test
