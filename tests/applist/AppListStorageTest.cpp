#include "applist/AppListFixture.h"

namespace barquell::test {
namespace {

using AppListStorageTest = AppListFixture;

TEST_F(AppListStorageTest, WhatIsNoListReadsAsEmptyAndStaysStored) {
    const QVariantList wrong{QStringLiteral("a"), 7LL, true, QVariantMap{{QStringLiteral("a"), 1LL}}};
    for (const QVariant &value : wrong) {
        EXPECT_EQ(open(value).count(), 0U);
        EXPECT_TRUE(sameValue(stored(), value));
    }
    list.reset();
    UserDefaults::standard().removeObjectForKey(kListKey);
    EXPECT_EQ(list.emplace(kListKey).count(), 0U);
    EXPECT_FALSE(stored().isValid());
    EXPECT_TRUE(posted.isEmpty() && logged.lines.isEmpty());
}

TEST_F(AppListStorageTest, LoadingTellsNobody) {
    openWords("a b");
    EXPECT_EQ(list->count(), 2U);
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(AppListStorageTest, AChangeFromOutsideReplacesTheListAndIsTold) {
    openWords("a b");
    here.platform.settings.write(kListKey, QVariantList{QStringLiteral("x")});
    here.loop.runPending();
    EXPECT_EQ(entries(), QStringLiteral("x"));
    EXPECT_TRUE(list->containsBundleIdentifier(QStringLiteral("x")));
    EXPECT_FALSE(list->containsBundleIdentifier(QStringLiteral("a")));
    EXPECT_EQ(selection(), std::nullopt);
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListStorageTest, ItsOwnWritesDoNotComeBack) {
    openWords("").addBundleIdentifier(QStringLiteral("a"));
    here.loop.runPending();
    EXPECT_EQ(posted.size(), 1);
}

TEST_F(AppListStorageTest, RepeatsStayAsTheyAreStored) {
    openWords("a b a");
    EXPECT_EQ(list->count(), 3U);
    EXPECT_TRUE(list->containsBundleIdentifier(QStringLiteral("a")));
    EXPECT_EQ(stored().toList().size(), 3);
    list->addBundleIdentifier(QStringLiteral("c"));
    EXPECT_EQ(entries(), QStringLiteral("a b a c"));
}

TEST_F(AppListStorageTest, OneOfTwoEqualEntriesGoesAlone) {
    openWords("a b a").removeObjectAtIndex(0);
    EXPECT_EQ(entries(), QStringLiteral("b a"));
    EXPECT_TRUE(list->containsBundleIdentifier(QStringLiteral("a")));
}

TEST_F(AppListStorageTest, RemovingAnIdentifierRemovesItsRepeats) {
    openWords("a b a").removeBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(entries(), QStringLiteral("b"));
    openWords("a b a").toggleBundleIdentifier(QStringLiteral("a"));
    EXPECT_EQ(entries(), QStringLiteral("b"));
}

TEST_F(AppListStorageTest, WhatIsNoIdentifierKeepsItsPlaceAndIsWrittenBack) {
    const QVariantList mixed{1LL, QStringLiteral("a"), QVariantList{QStringLiteral("b")}, 2.5};
    open(mixed);
    EXPECT_EQ(list->count(), 4U);
    EXPECT_TRUE(list->objectAtIndex(0).isNull());
    EXPECT_EQ(list->objectAtIndex(1), QStringLiteral("a"));
    EXPECT_FALSE(list->containsBundleIdentifier(QStringLiteral("1")));
    EXPECT_FALSE(list->containsBundleIdentifier(QStringLiteral("b")));
    EXPECT_TRUE(sameValue(stored(), mixed));
    list->addBundleIdentifier(QStringLiteral("c"));
    EXPECT_TRUE(sameValue(stored(), mixed + QVariantList{QStringLiteral("c")}));
    list->removeBundleIdentifier(QStringLiteral("1"));
    EXPECT_EQ(list->count(), 5U);
}

TEST_F(AppListStorageTest, AHundredThousandEntriesAreAList) {
    QVariantList many;
    for (int i = 0; i < 100000; ++i) {
        many.append(QStringLiteral("com.example.%1").arg(i));
    }
    open(many);
    EXPECT_EQ(list->count(), 100000U);
    EXPECT_TRUE(list->containsBundleIdentifier(QStringLiteral("com.example.99999")));
    list->moveObjectsAtIndexes({0}, 100000);
    EXPECT_EQ(list->objectAtIndex(99999), QStringLiteral("com.example.0"));
    EXPECT_TRUE(logged.lines.isEmpty());
}

} // namespace
} // namespace barquell::test
